// What the card after a session says, and the note that is typed into it, as its view sees them.
#pragma once

#include "app/Collaborators.h"
#include "tracking/DurationStyle.h"

#include <QColor>
#include <QObject>
#include <QQmlEngine>
#include <QStringList>

namespace vantle {

/// Main thread.
class StopSummaryModel final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the controller.")
    /// The duration in words: figures and units take turns, figures first.
    Q_PROPERTY(QStringList durationWords READ durationWords CONSTANT)
    /// The typeface of the duration, which it shares with the ceremony's title; empty for that of
    /// the type scale.
    Q_PROPERTY(QString durationFamily READ durationFamily CONSTANT)
    /// The same as one sentence with the skill, for assistive tools.
    Q_PROPERTY(QString durationLabel READ durationLabel CONSTANT)
    Q_PROPERTY(QString skillName READ skillName CONSTANT)
    Q_PROPERTY(QColor skillColor READ skillColor CONSTANT)
    /// Empty unless it was the first session ever.
    Q_PROPERTY(QString firstSessionText READ firstSessionText CONSTANT)
    /// How many finished hours stand before the result; 0 to 12.
    Q_PROPERTY(int dotCount READ dotCount CONSTANT)
    /// How much of the next dot is done, 0 to 1; 0 when no slice is shown.
    Q_PROPERTY(double sliceFraction READ sliceFraction CONSTANT)
    /// What the session added to the wall.
    Q_PROPERTY(QString resultText READ resultText CONSTANT)
    /// Whether the card asks for the note; only after the first session.
    Q_PROPERTY(bool spotlightNote READ spotlightNote CONSTANT)
    /// Empty unless the card asks for the note.
    Q_PROPERTY(QString invitationText READ invitationText CONSTANT)
    Q_PROPERTY(QString lockText READ lockText CONSTANT)
    Q_PROPERTY(QString hintText READ hintText CONSTANT)

    /// The most user-perceived characters that a note may have.
    Q_PROPERTY(int noteLimit READ noteLimit CONSTANT)
    Q_PROPERTY(bool hasNote READ hasNote NOTIFY noteChanged)
    /// Empty until the note comes near its limit.
    Q_PROPERTY(QString counterText READ counterText NOTIFY noteChanged)
    Q_PROPERTY(QString doneText READ doneText NOTIFY noteChanged)
    Q_PROPERTY(QString closeLabel READ closeLabel NOTIFY noteChanged)

public:
    /// From so many characters on the person sees how many there are.
    static constexpr int counterThreshold = 400;
    static constexpr int maxDots = 12;

    StopSummaryModel(const collaborators::StopSummary::Content& content, const Skill& skill,
                     DurationStyle style);

    [[nodiscard]] const QStringList& durationWords() const { return m_durationWords; }
    [[nodiscard]] static QString durationFamily();
    [[nodiscard]] const QString& durationLabel() const { return m_durationLabel; }
    [[nodiscard]] const QString& skillName() const { return m_skill.name; }
    [[nodiscard]] QColor skillColor() const { return QColor::fromRgb(m_skill.hexRGB); }
    [[nodiscard]] QString firstSessionText() const;
    [[nodiscard]] int dotCount() const;
    [[nodiscard]] double sliceFraction() const;
    [[nodiscard]] const QString& resultText() const { return m_resultText; }
    [[nodiscard]] bool spotlightNote() const { return m_content.spotlightNote; }
    [[nodiscard]] QString invitationText() const;
    [[nodiscard]] QString lockText() const;
    [[nodiscard]] QString hintText() const;

    [[nodiscard]] static int noteLimit() { return kMaxNoteLength; }
    [[nodiscard]] const QString& note() const { return m_note; }
    [[nodiscard]] bool hasNote() const { return !m_note.isEmpty(); }
    [[nodiscard]] QString counterText() const;
    [[nodiscard]] QString doneText() const;
    [[nodiscard]] QString closeLabel() const;

    /// Takes what stands in the field, and returns what may stay there: no more than its limit.
    Q_INVOKABLE QString takeNote(const QString& text);
    /// The user pressed the field. Its focus alone does not count: the desktop gives the keyboard
    /// to a card that asks for the note when it comes to it, which nobody did by hand.
    Q_INVOKABLE void notePressed();
    /// Return, or one of the two buttons.
    Q_INVOKABLE void submit();
    /// Escape: closes a card without a note; with one, only the keyboard goes back, so that nothing
    /// typed is lost.
    Q_INVOKABLE void turnAway();

    /// Puts the cursor into the field, which does not count as the person's doing.
    void inviteNote();

Q_SIGNALS:
    void noteChanged();
    void noteFocusRequested();
    /// The person touched the card.
    void interacted();
    /// The person closed the card.
    void done(const QString& note);
    /// The person wants the keyboard back.
    void keyboardReleased();

private:
    [[nodiscard]] QString describedResult(DurationStyle style) const;

    const collaborators::StopSummary::Content m_content;
    const Skill m_skill;
    const QStringList m_durationWords;
    const QString m_durationLabel;
    const QString m_resultText;
    QString m_note;
};

} // namespace vantle
