// What this desktop does not offer, and how to get by without it.
#pragma once

#include <QObject>
#include <QQmlEngine>

#include <functional>

namespace vantle {

class FrontmostApp;
class HotKey;
class IdleSource;
class OverlayStage;
class TrayItem;

/// Advice for the rows of the settings where the person looks for what is missing; empty where
/// nothing is. Main thread.
class DesktopGaps final : public QObject {
    Q_OBJECT
    QML_ANONYMOUS
    /// How to have a shortcut although ⌥⌘B can't be had.
    Q_PROPERTY(QString hotKeyAdvice READ hotKeyAdvice NOTIFY hotKeyChanged FINAL)
    /// What a press does about ⌥⌘B, where the desktop gives it on the user's word; empty elsewhere.
    Q_PROPERTY(QString hotKeyAction READ hotKeyAction NOTIFY hotKeyChanged FINAL)
    /// The command that the advice speaks of.
    Q_PROPERTY(QString command READ command CONSTANT FINAL)
    Q_PROPERTY(bool commandCopied READ commandCopied NOTIFY commandCopiedChanged FINAL)
    /// How to reach the panel although there is no tray.
    Q_PROPERTY(QString trayAdvice READ trayAdvice NOTIFY trayChanged FINAL)
    /// What auto mode does not do, since the desktop tells of no application or only of some.
    Q_PROPERTY(QString autoModeAdvice READ autoModeAdvice NOTIFY autoModeChanged FINAL)
    /// What a press does about it; empty where nothing can be done.
    Q_PROPERTY(QString autoModeRemedy READ autoModeRemedy NOTIFY autoModeChanged FINAL)
    /// Why no session starts by itself.
    Q_PROPERTY(QString autoStartAdvice READ autoStartAdvice NOTIFY autoModeChanged FINAL)
    /// Why no ceremony plays.
    Q_PROPERTY(QString ceremonyAdvice READ ceremonyAdvice CONSTANT FINAL)

public:
    /// What may be missing. All of it must outlive this.
    struct Environment {
        HotKey& hotKey;
        const TrayItem& tray;
        const IdleSource& idleSource;
        FrontmostApp& frontmostApp;
        const OverlayStage& overlayStage;
        std::function<void(const QString& text)> copy; ///< puts it into the clipboard
    };
    explicit DesktopGaps(Environment environment);

    [[nodiscard]] QString hotKeyAdvice() const;
    [[nodiscard]] QString hotKeyAction() const;
    Q_INVOKABLE void pressHotKeyAction();
    [[nodiscard]] static QString command();
    [[nodiscard]] bool commandCopied() const { return m_commandCopied; }
    Q_INVOKABLE void copyCommand();
    [[nodiscard]] QString trayAdvice() const;
    /// What stands in for the pause that an absence would bring.
    [[nodiscard]] QString idleAdvice() const;
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
    /// What the help that the desktop has for auto mode would do, or why it does not.
    [[nodiscard]] QString frontmostHelp() const;

    const Environment m_env;
    bool m_commandCopied = false;
};

} // namespace vantle
