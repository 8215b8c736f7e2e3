#include "surfaces/kit/tokens/DarkUI.h"

#include "surfaces/kit/tokens/Motion.h"

#include <QQmlEngine>

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
    m_palette = palette;
    Q_EMIT paletteChanged();
}

int DarkUI::inMotion(int value, int reduced) const { return m_motion->reduced() ? reduced : value; }

} // namespace vantle
