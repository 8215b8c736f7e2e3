#include "launch/Ceremony.h"

#include "ceremony/RippleOverlayController.h"
#include "ceremony/show/CeremonyFonts.h"
#include "ceremony/show/CeremonyFrameRenderer.h"
#include "launch/ResourceFolders.h"
#include "platform/Platform.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <malloc.h>
#include <utility>

namespace vantle {

namespace {

/// Beside the program in a build tree, among the program's modules in an installation. Missing
/// where the build had no web engine.
QString webModulePath() {
    const QString name = QStringLiteral("/vantle-webceremony.so");
    const QString built = resourcefolders::ofProgram() + name;
    if (QFileInfo::exists(built)) return built;
    return QDir::cleanPath(resourcefolders::ofProgram() + QStringLiteral("/../lib/vantle/plugins") +
                           name);
}

QString findPage() { return resourcefolders::find(QStringLiteral("ceremony.html")); }

RippleOverlayController::Prepare preparation() {
    // One generator per queue, since it is not thread-safe; shared, since std::function copies.
    return [random = std::make_shared<SystemRandom>()](CeremonyVariant variant, QSizeF size,
                                                       const std::optional<QString>& skillName) {
        return std::make_unique<CeremonyFrameRenderer>(
            CeremonyGridModel::build(variant, size, skillName.value_or(QString()), *random),
            PixelOrder::Bgra);
    };
}

} // namespace

void Ceremony::prepareProcess() {
    // A single heap: malloc can trim only the main thread's arena, and a show's memory goes back to
    // the system after it.
    mallopt(M_ARENA_MAX, 1);
    if (QFileInfo::exists(webModulePath()) && !findPage().isEmpty())
        QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
}

Ceremony::Ceremony(const Platform& platform, const Clock& clock, Scheduler& scheduler,
                   std::unique_ptr<SerialQueue> prepQueue)
    : m_platform(platform)
    , m_clock(clock)
    , m_scheduler(scheduler)
    , m_web(webModulePath(), findPage, platform.screens, platform.panelHost)
    , m_prepQueue(std::move(prepQueue)) {
    ceremonyfonts::registerBundledFonts(resourcefolders::all());
}

std::unique_ptr<collaborators::Ripple> Ceremony::makeRipple() {
    return std::make_unique<RippleOverlayController>(
        RippleOverlayController::Environment{.clock = m_clock,
                                             .scheduler = m_scheduler,
                                             .prepQueue = *m_prepQueue,
                                             .preferences = m_platform.preferences,
                                             .reducedMotion = m_platform.reducedMotion,
                                             .stage = m_platform.overlayStage,
                                             .web = m_web,
                                             .random = m_random,
                                             .prepare = preparation()});
}

} // namespace vantle
