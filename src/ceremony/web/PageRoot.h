// The root item of a ceremony page.
#pragma once

#include <QQuickItem>
#include <QQuickWebEngineProfile>
#include <QString>
#include <QUrl>

namespace vantle {

/// What the page and its window tell each other. Main thread.
class PageRoot : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    // From the window, before the page is complete.
    /// The file that may be shown.
    Q_PROPERTY(QUrl page MEMBER page CONSTANT)
    /// Runs in the page before any script of its own, and not in frames within it.
    Q_PROPERTY(QString script MEMBER script CONSTANT)
    /// Messages of the page come over its console, told from other lines by this word.
    Q_PROPERTY(QString messagePrefix MEMBER messagePrefix CONSTANT)
    /// From the window: the page may load, since nothing lets it onto the network any more.
    Q_PROPERTY(bool guarded READ isGuarded NOTIFY guardedChanged)
    /// From the page: what decides on its requests.
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
    /// The page has posted a message; its body as JSON.
    void messagePosted(const QString& body);
    /// Nothing more comes from the page, nor is anything of it seen.
    void crashed();

private:
    bool m_guarded = false;
    QQuickWebEngineProfile* m_profile = nullptr;
};

} // namespace vantle
