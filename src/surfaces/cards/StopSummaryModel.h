// The content of the card after a session, and its note.
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
    /// Figures and units in turn, figures first.
    Q_PROPERTY(QStringList durationWords READ durationWords CONSTANT)
    /// The duration's font family, shared with the ceremony's title; empty for that of the type
    /// scale.
    Q_PROPERTY(QString durationFamily READ durationFamily CONSTANT)
    /// The duration and the skill as a sentence, for screen readers.
    Q_PROPERTY(QString durationLabel READ durationLabel CONSTANT)
    Q_PROPERTY(QString skillName READ skillName CONSTANT)
    Q_PROPERTY(QColor skillColor READ skillColor CONSTANT)
    /// Empty except after the first session ever.
    Q_PROPERTY(QString firstSessionText READ firstSessionText CONSTANT)
    /// The number of finished hours drawn before the result; 0 to 12.
    Q_PROPERTY(int dotCount READ dotCount CONSTANT)
    /// The done part of the next dot, 0 to 1; 0 when no slice is shown.
    Q_PROPERTY(double sliceFraction READ sliceFraction CONSTANT)
    /// What the session added to the wall.
    Q_PROPERTY(QString resultText READ resultText CONSTANT)
    /// Whether the card asks for the note, which it does after the first session only.
    Q_PROPERTY(bool spotlightNote READ spotlightNote CONSTANT)
    /// Empty unless the card asks for the note.
    Q_PROPERTY(QString invitationText READ invitationText CONSTANT)
    Q_PROPERTY(QString lockText READ lockText CONSTANT)
    Q_PROPERTY(QString hintText READ hintText CONSTANT)

    /// In user-perceived characters.
    Q_PROPERTY(int noteLimit READ noteLimit CONSTANT)
    Q_PROPERTY(bool hasNote READ hasNote NOTIFY noteChanged)
    /// Empty until the note nears its limit.
    Q_PROPERTY(QString counterText READ counterText NOTIFY noteChanged)
    Q_PROPERTY(QString doneText READ doneText NOTIFY noteChanged)
    Q_PROPERTY(QString closeLabel READ closeLabel NOTIFY noteChanged)

public:
    /// The counter shows from this number of characters on.
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

    /// Takes the field's text and returns it, cut to the limit.
    Q_INVOKABLE QString takeNote(const QString& text);
    /// The user pressed the field. Focus alone does not count: the desktop focuses a card that asks
    /// for the note without the user.
    Q_INVOKABLE void notePressed();
    /// Return, or either button.
    Q_INVOKABLE void submit();
    /// Escape: closes a card without a note; with one, it only returns the keyboard, so that
    /// nothing is lost.
    Q_INVOKABLE void turnAway();

    /// Focuses the field, which does not count as an act of the user.
    void inviteNote();

Q_SIGNALS:
    void noteChanged();
    void noteFocusRequested();
    /// The user touched the card.
    void interacted();
    /// The user closed the card.
    void done(const QString& note);
    /// The user wants the keyboard back.
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
