// A message that screen readers speak as it comes, whatever has the focus.
#pragma once

#include <QObject>
#include <QQuickItem>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace vantle {

/// A notification in the accessibility tree, shown again with each message: the one event that
/// this toolkit can send and that readers speak for an application in the background. (A role of
/// AlertMessage alone does nothing.) It has no window and nothing to be seen, so that a message
/// comes through while the program shows nothing at all. Must outlive its message by the moment in
/// which a reader asks for it. Main thread.
class Announcer : public QObject {
    Q_OBJECT
    QML_ELEMENT
    /// For views: each text that differs from the one before is announced, unless it is empty.
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)

public:
    explicit Announcer(QObject* parent = nullptr) : QObject(parent) {}
    ~Announcer() override;

    /// Announces the text, also when it is the one before.
    Q_INVOKABLE void say(const QString& text);

    /// What a view says, in the order in which it is read: its headings, lines and pictures. Empty
    /// while no reader is there.
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
