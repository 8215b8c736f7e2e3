// What an alert says, and which button was chosen, as its view sees it.
#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QStringList>

namespace vantle {

/// Main thread.
class AlertModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the presenter.")
    /// What happened.
    Q_PROPERTY(QString message MEMBER message CONSTANT)
    /// What it means.
    Q_PROPERTY(QString informativeText MEMBER informativeText CONSTANT)
    /// The main one first; it stands at the right end and answers the return key.
    Q_PROPERTY(QStringList buttons MEMBER buttons CONSTANT)

public:
    QString message;
    QString informativeText;
    QStringList buttons;

    /// The button was pressed.
    Q_INVOKABLE void choose(int index) { Q_EMIT chosen(index); }
    /// The person turned away without pressing one: the last button counts.
    Q_INVOKABLE void dismiss() { Q_EMIT chosen(static_cast<int>(buttons.size()) - 1); }

Q_SIGNALS:
    void chosen(int index);
};

} // namespace vantle
