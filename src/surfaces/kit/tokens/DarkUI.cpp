#include "surfaces/kit/tokens/DarkUI.h"

#include "surfaces/kit/tokens/Motion.h"

#include <QQmlEngine>

#include <algorithm>
#include <cmath>
#include <utility>

namespace vantle {

DarkUI::DarkUI(QQmlEngine& engine) : QObject(&engine), m_motion(Motion::of(engine)) {
    connect(m_motion, &Motion::reducedChanged, this, &DarkUI::reducedChanged);
}

DarkUI* DarkUI::of(QQmlEngine& engine) {
    if (auto* tokens = engine.findChild<DarkUI*>(QString(), Qt::FindDirectChildrenOnly))
        return tokens;
    auto* tokens = new DarkUI(engine);
    QQmlEngine::setObjectOwnership(tokens, QQmlEngine::CppOwnership);
    return tokens;
}

DarkUI* DarkUI::create(QQmlEngine* engine, QJSEngine* /*scripts*/) { return of(*engine); }

void DarkUI::setPalette(const look::Palette& palette) {
    if (m_palette == palette) return;
    m_palette = palette;
    Q_EMIT paletteChanged();
}

void DarkUI::setTextScale(double factor) {
    if (m_textScale == factor) return;
    m_textScale = factor;
    for (TypeRole* const role : std::as_const(m_growing))
        role->setScale(factor);
    Q_EMIT textScaleChanged();
}

TypeRole* DarkUI::grown(TypeRole* role) {
    if (m_growing.contains(role)) return role;
    m_growing.append(role);
    role->setScale(m_textScale);
    return role;
}

int DarkUI::forText(int length) const {
    return static_cast<int>(std::lround(length * textScale()));
}

int DarkUI::inMotion(int value, int reduced) const { return m_motion->reduced() ? reduced : value; }

} // namespace vantle
