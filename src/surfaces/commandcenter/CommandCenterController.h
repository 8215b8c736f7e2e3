// The panel that drops from the tray item: when it is there, and where.
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

/// Shown it has the keyboard, which it gives back when it goes: on Escape, on a press elsewhere,
/// when the keyboard is taken from it, and before any window opens. Hidden there is no window and
/// no view; what was typed into the editor stays. Main thread.
class CommandCenterController final : public QObject {
    Q_OBJECT

public:
    /// What the controller works with. All of it must outlive the controller.
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

    /// Where the tray item is; empty where the desktop does not tell. Set once by the owner.
    std::function<QRect()> statusItemGeometry;

    /// A click on the tray item, at that place as far as known, else (0, 0).
    void toggle(QPoint click);
    void show(); ///< nothing where there is no screen
    void hide();
    [[nodiscard]] bool isShown() const { return m_panel != nullptr; }

    /// What the panel shows.
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
    QRectF m_screenFrame;             ///< of the screen that was in use as it was shown
    QRect m_frame;                    ///< of what the person sees, without its shadow
    QPoint m_click;                   ///< at which it was opened; (0, 0) when unknown
    OutsidePress m_outside;
    bool m_repositionPosted = false;
};

} // namespace vantle
