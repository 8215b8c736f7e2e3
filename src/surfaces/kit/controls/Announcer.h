// Announcements for screen readers, independent of the focus.
#pragma once

#include <QObject>
#include <QQuickItem>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace vantle {

/// A notification in the accessibility tree, shown again for each message: the only event that this
/// Qt can send and that readers speak for a background application. (The role AlertMessage alone
/// has no effect.) It needs no window, so it works while the program shows nothing. Must live until
/// a reader has fetched the message, a moment later. Main thread.
class Announcer : public QObject {
    Q_OBJECT
    QML_ELEMENT
    /// For views: announces each new text unless it is empty.
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)

public:
    explicit Announcer(QObject* parent = nullptr) : QObject(parent) {}
    ~Announcer() override;

    /// Announces the text, even if it is unchanged.
    Q_INVOKABLE void say(const QString& text);

    /// Returns a view's texts in reading order: headings, lines, pictures. Empty when no reader
    /// runs.
    Q_INVOKABLE [[nodiscard]] static QString linesOf(QQuickItem* view);

    [[nodiscard]] const QString& text() const { return m_text; }
    void setText(const QString& text);

Q_SIGNALS:
    void textChanged();

private:
    void setShown(bool shown);

    QString m_text;
    bool m_isShown = false;
};

} // namespace vantle
