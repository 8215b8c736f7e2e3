// The gaps of this desktop, with advice.
#pragma once

#include <QObject>
#include <QQmlEngine>

#include <functional>

namespace vantle {

class FrontmostApp;
class HotKey;
class IdleInhibition;
class IdleSource;
class OverlayStage;
class TrayItem;

/// Advice for the settings rows whose feature is missing; empty where nothing is. Main thread.
class DesktopGaps final : public QObject {
    Q_OBJECT
    QML_ANONYMOUS
    /// How to have a shortcut when ⌥⌘B is unavailable.
    Q_PROPERTY(QString hotKeyAdvice READ hotKeyAdvice NOTIFY hotKeyChanged FINAL)
    /// The button that enables ⌥⌘B where the desktop needs the user's consent; empty elsewhere.
    Q_PROPERTY(QString hotKeyAction READ hotKeyAction NOTIFY hotKeyChanged FINAL)
    /// The command that the advice names.
    Q_PROPERTY(QString command READ command CONSTANT FINAL)
    Q_PROPERTY(bool commandCopied READ commandCopied NOTIFY commandCopiedChanged FINAL)
    /// How to reach the panel without a tray.
    Q_PROPERTY(QString trayAdvice READ trayAdvice NOTIFY trayChanged FINAL)
    /// What auto mode misses, because the desktop reports no application or only some.
    Q_PROPERTY(QString autoModeAdvice READ autoModeAdvice NOTIFY autoModeChanged FINAL)
    /// The button against it; empty where nothing can be done.
    Q_PROPERTY(QString autoModeRemedy READ autoModeRemedy NOTIFY autoModeChanged FINAL)
    /// Why auto mode starts no session.
    Q_PROPERTY(QString autoStartAdvice READ autoStartAdvice NOTIFY autoModeChanged FINAL)
    /// Why no ceremony plays.
    Q_PROPERTY(QString ceremonyAdvice READ ceremonyAdvice CONSTANT FINAL)

public:
    /// The services that may be missing. All of them must outlive this object.
    struct Environment {
        HotKey& hotKey;
        const TrayItem& tray;
        const IdleSource& idleSource;
        const IdleInhibition& idleInhibition;
        FrontmostApp& frontmostApp;
        const OverlayStage& overlayStage;
        std::function<void(const QString& text)> copy; ///< copies to the clipboard
    };
    explicit DesktopGaps(Environment environment);

    [[nodiscard]] QString hotKeyAdvice() const;
    [[nodiscard]] QString hotKeyAction() const;
    Q_INVOKABLE void pressHotKeyAction();
    [[nodiscard]] static QString command();
    [[nodiscard]] bool commandCopied() const { return m_commandCopied; }
    Q_INVOKABLE void copyCommand();
    [[nodiscard]] QString trayAdvice() const;
    /// What replaces the pause by absence.
    [[nodiscard]] QString idleAdvice() const;
    /// Why a call counts as an absence all the same.
    [[nodiscard]] QString callsAdvice() const;
    [[nodiscard]] QString autoModeAdvice() const;
    [[nodiscard]] QString autoModeRemedy() const;
    void applyAutoModeRemedy();
    [[nodiscard]] QString autoStartAdvice() const;
    [[nodiscard]] QString ceremonyAdvice() const;

Q_SIGNALS:
    void hotKeyChanged();
    void commandCopiedChanged();
    void trayChanged();
    void idleChanged();
    void autoModeChanged();

private:
    /// What enabling the desktop's help would do for auto mode, or why it did not work.
    [[nodiscard]] QString frontmostHelp() const;

    const Environment m_env;
    bool m_commandCopied = false;
};

} // namespace vantle
