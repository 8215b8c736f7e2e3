// The text of the recovery notice, for its view.
#pragma once

#include "base/Words.h"
#include "tracking/DurationStyle.h"
#include "tracking/Session.h"
#include "tracking/Skill.h"

#include <QColor>
#include <QObject>
#include <QQmlEngine>
#include <QString>

namespace vantle {

/// Main thread.
class RecoveryNoticeModel final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the controller.")
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QString body READ body CONSTANT)
    Q_PROPERTY(QString discardHelp READ discardHelp CONSTANT)
    Q_PROPERTY(QString keepHelp READ keepHelp CONSTANT)

public:
    RecoveryNoticeModel(const Session& session, const Skill& skill, DurationStyle style);

    [[nodiscard]] QString title() const { return Words::tr("Recover your last session?"); }
    [[nodiscard]] QString body() const;
    [[nodiscard]] QString discardHelp() const {
        return Words::tr("Deletes the interrupted session without saving it");
    }
    [[nodiscard]] QString keepHelp() const {
        return Words::tr("Saves the interrupted session to your local log");
    }

    /// The body as styled text, with duration and skill in that colour.
    Q_INVOKABLE [[nodiscard]] QString styledBody(const QColor& stressed) const;
    Q_INVOKABLE void discard() { Q_EMIT discarded(); }
    Q_INVOKABLE void keep() { Q_EMIT kept(); }

Q_SIGNALS:
    void discarded();
    void kept();

private:
    const QString m_duration;
    const QString m_skillName;
};

} // namespace vantle
