// The content of an alert and its answer, for its view.
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
    /// The default button first; it is at the right end and reacts to Return.
    Q_PROPERTY(QStringList buttons MEMBER buttons CONSTANT)

public:
    QString message;
    QString informativeText;
    QStringList buttons;

    /// The user pressed the button.
    Q_INVOKABLE void choose(int index) { Q_EMIT chosen(index); }
    /// The user closed the alert without a button: the last one counts.
    Q_INVOKABLE void dismiss() { Q_EMIT chosen(static_cast<int>(buttons.size()) - 1); }

Q_SIGNALS:
    void chosen(int index);
};

} // namespace vantle
