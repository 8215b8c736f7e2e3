// The controller of the command center: when and where it opens.
#pragma once

#include "surfaces/commandcenter/CommandCenterModel.h"
#include "surfaces/commandcenter/CommandCenterPlacement.h"
#include "surfaces/commandcenter/OutsidePress.h"

#include <QPointer>

namespace vantle {

class AppModel;
class Clock;
class FloatingPanel;
class PanelHost;
class PointerPresses;
class SharedEngine;
class WindowRouter;

/// Has the keyboard while open and returns it when it closes: on Escape, on a press elsewhere, when
/// the focus moves, and before a window opens. While closed there is no window or view; text in the
/// editor is kept. Main thread.
class CommandCenterController final : public QObject {
    Q_OBJECT

public:
    /// The services of the controller. All of them must outlive it.
    struct Environment {
        AppModel& model;
        SkillList& skills;
        const Preferences& preferences;
        const Clock& clock;
        Scheduler& scheduler;
        WindowRouter& router;
        SharedEngine& engine;
        PanelHost& host;
        const Screens& screens;
        PointerPresses& presses;
        OpenQuestions& questions;
    };

    explicit CommandCenterController(const Environment& environment);
    ~CommandCenterController() override;

    /// Returns the tray item's place; empty where unknown. Set once by the owner.
    std::function<QRect()> statusItemGeometry;

    /// A click on the tray item at that position; (0, 0) where unknown.
    void toggle(QPoint click);
    void show(); ///< no effect without a screen
    void hide();
    [[nodiscard]] bool isShown() const { return m_panel != nullptr; }

    /// The content's model.
    [[nodiscard]] CommandCenterModel& content() { return m_content; }
    /// Null while it is hidden.
    [[nodiscard]] FloatingPanel* panel() const { return m_panel; }

private:
    [[nodiscard]] CommandCenterActions actions();
    [[nodiscard]] QList<CommandCenterModel::Door> doors() const;
    [[nodiscard]] bool makePanel();
    void reposition();
    void repositionSoon();
    void onPress(QPoint place);
    void onKeyboardLost();
    [[nodiscard]] QRect itemGeometry() const;

    Environment m_env;
    CommandCenterModel m_content;
    FloatingPanel* m_panel = nullptr; ///< deletes itself after hiding
    QRectF m_screenFrame;             ///< of the screen in use when it opened
    QRect m_frame;                    ///< the visible part, without the shadow
    QPoint m_click;                   ///< where it was opened; (0, 0) when unknown
    OutsidePress m_outside;
    bool m_repositionPosted = false;
};

} // namespace vantle
