#include "surfaces/kit/tokens/Motion.h"

#include "surfaces/kit/tokens/Spring.h"

#include <QQmlEngine>

#include <cmath>

namespace vantle {
namespace {

constexpr double kMillisecond = 0.001;
// A thousandth of some hundred pixels is invisible.
constexpr double kAtRest = 0.001;

} // namespace

Motion* Motion::of(QQmlEngine& engine) {
    if (auto* motion = engine.findChild<Motion*>(QString(), Qt::FindDirectChildrenOnly))
        return motion;
    auto* motion = new Motion(&engine);
    QQmlEngine::setObjectOwnership(motion, QQmlEngine::CppOwnership);
    return motion;
}

Motion* Motion::create(QQmlEngine* engine, QJSEngine* /*scripts*/) { return of(*engine); }

void Motion::setReduced(bool reduced) {
    if (m_reduced == reduced) return;
    m_reduced = reduced;
    Q_EMIT reducedChanged();
}

double Motion::springAt(double stiffness, double damping, double milliseconds) {
    return Spring{stiffness, damping}.progressAt(milliseconds * kMillisecond);
}

int Motion::springTime(double stiffness, double damping) {
    return static_cast<int>(
        std::ceil(Spring{stiffness, damping}.settlingTime(kAtRest) / kMillisecond));
}

} // namespace vantle
