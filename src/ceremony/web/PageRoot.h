// The root item of a ceremony page.
#pragma once

#include <QQuickItem>
#include <QQuickWebEngineProfile>
#include <QString>
#include <QUrl>

namespace vantle {

/// The interface between page and window. Main thread.
class PageRoot : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    // Set by the window before the page is complete.
    /// The page's file.
    Q_PROPERTY(QUrl page MEMBER page CONSTANT)
    /// Runs before the page's own scripts, in the main frame only.
    Q_PROPERTY(QString script MEMBER script CONSTANT)
    /// Prefix of console lines that carry a message.
    Q_PROPERTY(QString messagePrefix MEMBER messagePrefix CONSTANT)
    /// Set by the window: the page may load, since the network filter is installed.
    Q_PROPERTY(bool guarded READ isGuarded NOTIFY guardedChanged)
    /// Set by the page: the profile that takes the network filter.
    Q_PROPERTY(QQuickWebEngineProfile* profile MEMBER m_profile NOTIFY profileChanged)

public:
    using QQuickItem::QQuickItem;

    QUrl page;
    QString script;
    QString messagePrefix;

    [[nodiscard]] bool isGuarded() const { return m_guarded; }
    void setGuarded() {
        m_guarded = true;
        Q_EMIT guardedChanged();
    }
    [[nodiscard]] QQuickWebEngineProfile* profile() const { return m_profile; }

Q_SIGNALS:
    void guardedChanged();
    void profileChanged();
    /// The page posted a message; `body` is JSON.
    void messagePosted(const QString& body);
    /// The page crashed: it is invisible and sends nothing more.
    void crashed();

private:
    bool m_guarded = false;
    QQuickWebEngineProfile* m_profile = nullptr;
};

} // namespace vantle
