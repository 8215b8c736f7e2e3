#include "surfaces/commandcenter/CommandCenterController.h"

#include "app/AppModel.h"
#include "base/Words.h"
#include "platform/PointerPresses.h"
#include "surfaces/panel/FloatingPanel.h"
#include "surfaces/window/SharedEngine.h"
#include "surfaces/window/WindowRouter.h"

#include <QCoreApplication>
#include <QQmlEngine>
#include <QQuickItem>

namespace vantle {

CommandCenterController::CommandCenterController(const Environment& environment)
    : m_env(environment)
    , m_content({m_env.model.flow(), m_env.model.actionNote(), m_env.model.panelState(),
                 m_env.skills, m_env.preferences, m_env.scheduler, m_env.questions,
                 [this] { return doors(); }},
                actions()) {
    connect(&m_env.presses, &PointerPresses::pressed, this, &CommandCenterController::onPress);
    connect(&m_env.screens, &Screens::changed, this, &CommandCenterController::repositionSoon);
}

CommandCenterController::~CommandCenterController() {
    hide();
    m_env.presses.ignore();
    // Deletes hidden views now, while what they refer to still exists.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QList<CommandCenterModel::Door> CommandCenterController::doors() const {
    QList<CommandCenterModel::Door> doors;
    for (const WindowSpec* const spec : m_env.router.doors())
        doors << CommandCenterModel::Door{spec->id, spec->door};
    return doors;
}

CommandCenterActions CommandCenterController::actions() {
    AppModel& model = m_env.model;
    return {
        .toggleVantle = [&model] { model.toggleVantle(); },
        .selectSkill =
            [&model](const QString& id) {
                model.selectSkill(id, AppModel::SkillSelectionOrigin::Human);
            },
        .addSkill = [&model](const QString& name,
                             std::uint32_t hexRGB) { model.addSkill(name, hexRGB); },
        .updateSkill = [&model](const QString& id, const QString& name,
                                std::uint32_t hexRGB) { model.updateSkill(id, name, hexRGB); },
        .deleteSkill = [&model](const QString& id) { model.deleteSkill(id); },
        .backfill = [&model](int minutes) { model.startWithBackfill(minutes); },
        .openWindow =
            [this](WindowId id) {
                hide();
                m_env.router.show(id);
            },
        .openWrapped =
            [this](WrappedPeriod period) {
                hide();
                m_env.router.showWrapped(period);
            },
        .quit = [&model] { model.quit(); },
        .hide = [this] { hide(); },
        .relayout = [this] { repositionSoon(); },
    };
}

void CommandCenterController::toggle(QPoint click) {
    if (m_outside.takeClick(click, m_env.clock.now())) return;
    if (isShown()) {
        hide();
        return;
    }
    m_click = click;
    show();
}

void CommandCenterController::show() {
    m_env.model.refreshPanelState();
    const auto screens = m_env.screens.inUseFirst();
    if (screens.empty() || (!m_panel && !makePanel())) return;
    m_screenFrame = screens.front().frame;
    reposition();
    m_panel->takeKeyboard(); // also when already visible
    if (m_env.model.highlightStatusItem) m_env.model.highlightStatusItem(true);
    m_env.presses.watch();
}

bool CommandCenterController::makePanel() {
    auto engine = m_env.engine.acquire();
    auto panel = std::make_unique<FloatingPanel>(*engine, m_env.host);
    panel->setTitle(Words::tr("Vantle Command Center"));
    m_content.setShown(true);
    if (!panel->load(QUrl(QStringLiteral("qrc:/qt/qml/Vantle/CommandCenter/CommandCenterView.qml")),
                     {{QStringLiteral("model"), QVariant::fromValue(&m_content)}})) {
        m_content.setShown(false);
        return false;
    }
    const PanelRoot* const view = panel->root();
    connect(view, &QQuickItem::implicitHeightChanged, this,
            &CommandCenterController::repositionSoon);
    connect(view, &PanelRoot::dismissed, this, &CommandCenterController::hide);
    connect(panel.get(), &FloatingPanel::keyboardLost, this,
            &CommandCenterController::onKeyboardLost);
    connect(panel.get(), &FloatingPanel::compositedChanged, this,
            &CommandCenterController::repositionSoon);
    // Keeps the engine until the view is destroyed.
    connect(panel.get(), &QObject::destroyed, [engine] {});
    m_panel = panel.release();
    return true;
}

QRect CommandCenterController::itemGeometry() const {
    return statusItemGeometry ? statusItemGeometry() : QRect();
}

void CommandCenterController::reposition() {
    PanelRoot& view = *m_panel->root();
    const auto screens = startingWith(m_screenFrame, m_env.screens.all());
    if (screens.empty()) return;
    const commandcenterplacement::Anchor anchor{itemGeometry(), m_click};
    view.setMaximumHeight(commandcenterplacement::maximumHeight(anchor, screens));
    const Placement placement =
        commandcenterplacement::place(view.ground().size(), anchor, screens);
    m_frame = placement.ground();
    m_panel->showAt(m_panel->withShadow(placement));
    view.setUp(true);
}

void CommandCenterController::repositionSoon() {
    // One change of the content changes its height several times.
    if (m_repositionPosted || !isShown()) return;
    m_repositionPosted = true;
    m_env.scheduler.post([self = QPointer(this)] {
        if (!self) return;
        self->m_repositionPosted = false;
        if (self->isShown()) self->reposition();
    });
}

void CommandCenterController::onPress(QPoint place) {
    if (!isShown()) {
        m_outside.nextPress();
        m_env.presses.ignore();
        return;
    }
    // toggle() handles a press on the tray item.
    if (m_frame.contains(place) || itemGeometry().contains(place)) return;
    hide();
    m_outside.closedPanel(place, m_env.clock.now());
    m_env.presses.watch(); // until the next press
}

void CommandCenterController::onKeyboardLost() {
    // Deferred, since the press that took the keyboard may be on the tray item.
    m_env.scheduler.post([self = QPointer(this)] {
        if (self) self->hide();
    });
}

void CommandCenterController::hide() {
    if (!m_panel) return;
    m_env.presses.ignore();
    if (m_env.model.highlightStatusItem) m_env.model.highlightStatusItem(false);
    FloatingPanel* const panel = std::exchange(m_panel, nullptr);
    panel->disconnect(this);
    // Before unmapping, so that a card that takes the keyboard next knows its owner.
    panel->returnKeyboard();
    panel->hide();
    panel->deleteLater(); // it may be handling an event of the user
    m_content.setShown(false);
}

} // namespace vantle
