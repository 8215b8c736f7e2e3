#include "surfaces/cards/StopSummaryModel.h"

#include "base/Bidi.h"
#include "base/Text.h"
#include "base/Words.h"
#include "ceremony/show/CeremonyFonts.h"
#include "tracking/DashFormat.h"

#include <algorithm>

namespace vantle {

namespace {

constexpr double kSecondsOfADot = 3600.0;

QString durationOf(const Session& session, DurationStyle style) {
    return dashformat::sessionDuration(session.activeSeconds, style);
}

} // namespace

StopSummaryModel::StopSummaryModel(const collaborators::StopSummary::Content& content,
                                   const Skill& skill, DurationStyle style)
    : m_content(content)
    , m_skill(skill)
    , m_durationWords(durationOf(content.session, style).split(QLatin1Char(' ')))
    , m_durationLabel(
          Words::tr("%1 of %2").arg(durationOf(content.session, style), bidi::isolated(skill.name)))
    , m_resultText(describedResult(style)) {}

QString StopSummaryModel::describedResult(DurationStyle style) const {
    if (m_content.newHours == 1) return Words::tr("Completed an hour on your wall");
    if (m_content.newHours > 1)
        return Words::tr("Completed %n hours on your wall", nullptr,
                         static_cast<int>(m_content.newHours));
    if (m_content.carrySeconds >= 1)
        return Words::tr("%1 into your next dot")
            .arg(dashformat::sessionDuration(m_content.carrySeconds, style));
    return Words::tr("Added to your wall");
}

QString StopSummaryModel::durationFamily() { return ceremonyfonts::titleFamily(); }

QString StopSummaryModel::firstSessionText() const {
    return m_content.isFirstSession ? Words::tr("Your first session is on the wall.") : QString();
}

int StopSummaryModel::dotCount() const {
    return static_cast<int>(std::clamp<std::int64_t>(m_content.newHours, 0, maxDots));
}

double StopSummaryModel::sliceFraction() const {
    if (m_content.newHours >= 1) return 0;
    const double fraction = static_cast<double>(m_content.carrySeconds) / kSecondsOfADot;
    return std::clamp(fraction, 0.0, 1.0);
}

QString StopSummaryModel::invitationText() const {
    return m_content.spotlightNote ? Words::tr("Try the note: one line about what you just did. "
                                               "This first one is just practice.")
                                   : QString();
}

QString StopSummaryModel::lockText() const {
    return m_content.spotlightNote
               ? Words::tr("Notes save privately with each session, after this one.")
               : Words::tr("Saved privately with this session.");
}

QString StopSummaryModel::hintText() const {
    return m_content.showHotkeyHint
               ? Words::tr("Next time: press option command B to start and stop from anywhere.")
               : Words::tr("Press Return to save");
}

QString StopSummaryModel::counterText() const {
    const qsizetype count = text::characterCount(m_note);
    return count < counterThreshold ? QString()
                                    : QStringLiteral("%1/%2").arg(count).arg(kMaxNoteLength);
}

QString StopSummaryModel::doneText() const {
    return hasNote() ? Words::tr("Save note") : Words::tr("Done");
}

QString StopSummaryModel::closeLabel() const {
    return hasNote() ? Words::tr("Close and save note") : Words::tr("Close");
}

QString StopSummaryModel::takeNote(const QString& text) {
    if (text == m_note) return m_note;
    m_note = text::firstCharacters(text, kMaxNoteLength);
    Q_EMIT noteChanged();
    Q_EMIT interacted();
    return m_note;
}

void StopSummaryModel::notePressed() { Q_EMIT interacted(); }

void StopSummaryModel::submit() { Q_EMIT done(m_note); }

void StopSummaryModel::turnAway() {
    if (hasNote())
        Q_EMIT keyboardReleased();
    else
        submit();
}

void StopSummaryModel::inviteNote() { Q_EMIT noteFocusRequested(); }

} // namespace vantle
