// What this desktop does not offer, and how to get by without it.
#pragma once

#include <QObject>
#include <QQmlEngine>

#include <functional>

namespace vantle {

class HotKey;
class TrayItem;

/// Advice for the rows of the settings where the person looks for what is missing; empty where
/// nothing is. Main thread.
class DesktopGaps final : public QObject {
    Q_OBJECT
    QML_ANONYMOUS
    /// How to have a shortcut although ⌥⌘B can't be had, or is not heard everywhere.
    Q_PROPERTY(QString hotKeyAdvice READ hotKeyAdvice NOTIFY hotKeyChanged FINAL)
    /// The command that the advice speaks of.
    Q_PROPERTY(QString command READ command CONSTANT FINAL)
    Q_PROPERTY(bool commandCopied READ commandCopied NOTIFY commandCopiedChanged FINAL)
    /// How to reach the panel although there is no tray.
    Q_PROPERTY(QString trayAdvice READ trayAdvice NOTIFY trayChanged FINAL)

public:
    /// The references must outlive this. `copy` puts a text into the clipboard.
    DesktopGaps(const HotKey& hotKey, const TrayItem& tray,
                std::function<void(const QString& text)> copy);

    [[nodiscard]] QString hotKeyAdvice() const;
    [[nodiscard]] static QString command();
    [[nodiscard]] bool commandCopied() const { return m_commandCopied; }
    Q_INVOKABLE void copyCommand();
    [[nodiscard]] QString trayAdvice() const;

Q_SIGNALS:
    void hotKeyChanged();
    void commandCopiedChanged();
    void trayChanged();

private:
    const HotKey& m_hotKey;
    const TrayItem& m_tray;
    const std::function<void(const QString& text)> m_copy;
    bool m_commandCopied = false;
};

} // namespace vantle
