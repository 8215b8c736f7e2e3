// The model of the settings window.
#pragma once

#include "base/Result.h"
#include "platform/Preference.h"
#include "surfaces/settings/DesktopGaps.h"
#include "surfaces/settings/PreferenceRowModel.h"
#include "surfaces/settings/SeenAppRows.h"
#include "tracking/DurationStyle.h"

#include <QObject>
#include <QQmlEngine>
#include <QStringList>

#include <functional>
#include <optional>

namespace vantle {

class AppModel;
class AppPaths;
class AutoRules;
class Autostart;
class FocusLink;
class FrontmostApp;
class IdleInhibition;
class IdleSource;
class OverlayStage;
class NotificationCenter;
class Preferences;
class SerialQueue;
class TrayItem;

/// Reads all state on construction and after an erase; stores each change immediately. A failure is
/// shown in its own row only. Main thread.
class SettingsView final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the window router.")
    Q_PROPERTY(bool focusLinked READ focusLinked WRITE setFocusLinked NOTIFY switched FINAL)
    Q_PROPERTY(bool launchAtLogin READ launchAtLogin WRITE setLaunchAtLogin NOTIFY switched FINAL)

    /// The tool reported no shortcuts.
    Q_PROPERTY(bool hasNoShortcuts READ hasNoShortcuts NOTIFY shortcutsChanged FINAL)
    /// The entries of the two menus, the empty choice first, and the current choice.
    Q_PROPERTY(QList<QString> startChoices READ startChoices NOTIFY shortcutsChanged FINAL)
    Q_PROPERTY(int startChoice READ startChoice NOTIFY shortcutsChanged FINAL)
    Q_PROPERTY(QList<QString> stopChoices READ stopChoices NOTIFY shortcutsChanged FINAL)
    Q_PROPERTY(int stopChoice READ stopChoice NOTIFY shortcutsChanged FINAL)
    /// Why their folder could not be opened; empty otherwise.
    Q_PROPERTY(QString shortcutsFailure READ shortcutsFailure NOTIFY shortcutsChanged FINAL)

    Q_PROPERTY(vantle::SeenAppRows* apps READ apps CONSTANT FINAL)
    Q_PROPERTY(QString appsNote READ appsNote NOTIFY appsChanged FINAL)
    /// The menu of each application: the skills, "Ignore", "Not set".
    Q_PROPERTY(QList<QString> appChoices READ appChoices NOTIFY appsChanged FINAL)
    /// Why the rules could not be saved; empty otherwise.
    Q_PROPERTY(QString appsFailure READ appsFailure NOTIFY appsFailureChanged FINAL)

    /// What this desktop lacks.
    Q_PROPERTY(vantle::DesktopGaps* gaps READ gaps CONSTANT FINAL)
    /// Whether the shortcut works in every application.
    Q_PROPERTY(bool isHotKeyActive READ isHotKeyActive NOTIFY hotKeyChanged FINAL)
    Q_PROPERTY(QString hotKeyText READ hotKeyText NOTIFY hotKeyChanged FINAL)
    /// Why the shortcut could not be registered; empty otherwise.
    Q_PROPERTY(QString hotKeyFailure READ hotKeyFailure NOTIFY hotKeyChanged FINAL)

    Q_PROPERTY(QList<QString> durationChoices READ durationChoices CONSTANT FINAL)
    Q_PROPERTY(
        int durationChoice READ durationChoice WRITE chooseDuration NOTIFY durationChanged FINAL)
    Q_PROPERTY(QString welcomeCaption READ welcomeCaption NOTIFY welcomeReplayArmedChanged FINAL)

    /// The result of the export; empty before one.
    Q_PROPERTY(QString exportFeedback READ exportFeedback NOTIFY exportChanged FINAL)
    Q_PROPERTY(bool exportFailed READ exportFailed NOTIFY exportChanged FINAL)
    Q_PROPERTY(bool confirmingErase READ confirmingErase NOTIFY eraseChanged FINAL)
    Q_PROPERTY(QString eraseQuestion READ eraseQuestion CONSTANT FINAL)
    /// The result of the erase; empty before one.
    Q_PROPERTY(QString eraseStatus READ eraseStatus NOTIFY eraseChanged FINAL)
    Q_PROPERTY(bool eraseSucceeded READ eraseSucceeded NOTIFY eraseChanged FINAL)
    Q_PROPERTY(QString versionLine READ versionLine CONSTANT FINAL)

public:
    /// The rows outside the table with constant texts.
    enum Row {
        FocusLinkRow,
        StartShortcutRow,
        StopShortcutRow,
        LoginRow,
        HotKeyRow,
        TrayRow,
        DurationRow,
        WelcomeRow,
        ExportRow,
        EraseRow,
    };
    Q_ENUM(Row)

    /// The services of the window. All of them must outlive the model.
    struct Environment {
        AppModel& model;
        AutoRules& rules; ///< auto mode's
        FocusLink& focusLink;
        Autostart& autostart;
        Preferences& preferences;
        NotificationCenter& notifications;
        const AppPaths& paths;
        SerialQueue& ioQueue;
        std::function<void(const QString& path)> reveal; ///< shows a file in the file manager
        std::function<Result<>()> openShortcuts;         ///< opens the shortcuts folder
        const TrayItem& tray;
        const IdleSource& idleSource;
        const IdleInhibition& idleInhibition;
        FrontmostApp& frontmostApp;
        const OverlayStage& overlayStage;
        std::function<void(const QString& text)> copy; ///< copies to the clipboard
        /// Erases everything. Returns the text for the user on a failure; empty on full success.
        std::function<std::optional<QString>()> eraseAllData;
    };

    explicit SettingsView(Environment environment);
    ~SettingsView() override;

    /// "Vantle 1.0 (1)".
    [[nodiscard]] static QString versionLine();

    // The texts of a row: before its control, below it, on its button. Empty for none.
    Q_INVOKABLE static QString title(Row row);
    Q_INVOKABLE static QString caption(Row row);
    Q_INVOKABLE static QString action(Row row);
    /// The tooltip of a row's control.
    Q_INVOKABLE static QString help(Row row);

    /// The table's rows in a section, top to bottom.
    Q_INVOKABLE [[nodiscard]] QList<QObject*> rows(PreferenceRowModel::Section section) const;

    [[nodiscard]] bool focusLinked() const { return m_focusLinked; }
    void setFocusLinked(bool linked);
    [[nodiscard]] bool launchAtLogin() const { return m_launchAtLogin; }
    void setLaunchAtLogin(bool on);

    [[nodiscard]] bool hasNoShortcuts() const;
    [[nodiscard]] QList<QString> startChoices() const { return choices(m_focusStartShortcut); }
    [[nodiscard]] int startChoice() const { return choice(m_focusStartShortcut); }
    Q_INVOKABLE void chooseStartShortcut(int choice);
    [[nodiscard]] QList<QString> stopChoices() const { return choices(m_focusStopShortcut); }
    [[nodiscard]] int stopChoice() const { return choice(m_focusStopShortcut); }
    Q_INVOKABLE void chooseStopShortcut(int choice);
    [[nodiscard]] const QString& shortcutsFailure() const { return m_shortcutsFailure; }
    Q_INVOKABLE void openShortcuts();

    [[nodiscard]] SeenAppRows* apps() { return &m_apps; }
    [[nodiscard]] QString appsNote() const;
    [[nodiscard]] QList<QString> appChoices() const;
    [[nodiscard]] QString appsFailure() const;
    Q_INVOKABLE void chooseSkill(const QString& bundleId, int choice);
    Q_INVOKABLE void forgetApp(QString bundleId);

    [[nodiscard]] DesktopGaps* gaps() { return &m_gaps; }
    [[nodiscard]] bool isHotKeyActive() const;
    [[nodiscard]] QString hotKeyText() const;
    [[nodiscard]] QString hotKeyFailure() const;

    /// Each style with an example.
    [[nodiscard]] QList<QString> durationChoices() const;
    [[nodiscard]] int durationChoice() const;
    void chooseDuration(int choice);

    [[nodiscard]] bool welcomeReplayArmed() const { return m_welcomeReplayArmed; }
    [[nodiscard]] QString welcomeCaption() const;
    Q_INVOKABLE void replayWelcome();

    [[nodiscard]] QString exportFeedback() const { return m_exportFeedback.value_or(QString()); }
    [[nodiscard]] bool exportFailed() const { return m_exportFailed; }
    /// Shows the log in the file manager; creates an empty one if needed.
    Q_INVOKABLE void exportData();

    [[nodiscard]] bool confirmingErase() const { return m_confirmingErase; }
    [[nodiscard]] static QString eraseQuestion();
    [[nodiscard]] QString eraseStatus() const { return m_eraseStatus.value_or(QString()); }
    [[nodiscard]] bool eraseSucceeded() const { return m_eraseSucceeded; }
    Q_INVOKABLE void askToErase() { setConfirmingErase(true); }
    Q_INVOKABLE void cancelErase() { setConfirmingErase(false); }
    /// Erases everything after the confirmation.
    Q_INVOKABLE void confirmErase();

Q_SIGNALS:
    void switched();
    void shortcutsChanged();
    void appsChanged();
    void appsFailureChanged();
    void hotKeyChanged();
    void durationChanged();
    void welcomeReplayArmedChanged();
    void exportChanged();
    void eraseChanged();

private:
    void follow();
    void readState();
    void readPreferences();
    void listShortcuts();
    [[nodiscard]] QList<QString> choices(const QString& chosen) const;
    [[nodiscard]] int choice(const QString& chosen) const;
    void setFocusShortcut(const Preference<QString>& shortcut, const QString& name);
    void refreshApps();
    [[nodiscard]] SeenAppRows::Row rowOf(const SeenApp& app) const;
    [[nodiscard]] Result<> ensureLog() const;
    void setConfirmingErase(bool confirming);

    const Environment m_env;
    SeenAppRows m_apps;
    DesktopGaps m_gaps;
    QList<PreferenceRowModel*> m_rows; ///< children of this
    bool m_welcomeReplayArmed = false;
    bool m_focusLinked = false;
    std::optional<QStringList> m_focusShortcutNames; ///< empty until the tool replied
    int m_listings = 0;                              ///< number of requests so far
    QString m_focusStartShortcut;
    QString m_focusStopShortcut;
    QString m_shortcutsFailure;
    bool m_launchAtLogin = false;
    DurationStyle m_durationStyle = DurationStyle::Natural;
    bool m_confirmingErase = false;
    bool m_exportFailed = false;
    std::optional<QString> m_exportFeedback;
    std::optional<QString> m_eraseStatus;
    bool m_eraseSucceeded = false;
};

} // namespace vantle
