#include "review/narrative/NoteNarrative.h"

#include "base/Text.h"
#include "platform/LanguageModel.h"
#include "review/narrative/NarrativeText.h"

#include <utility>

namespace vantle {

namespace {

constexpr qsizetype kFewestNotes = 2;
constexpr qsizetype kFewestCharacters = 40; ///< of all notes, joined by blanks
constexpr qsizetype kMostWordsAtOnce = 32;  ///< a longer answer is rewritten
constexpr qsizetype kMostWords = 40;        ///< a longer sentence is dropped

QStringList withText(const QStringList& notes) {
    QStringList kept;
    for (const QString& note : notes) {
        const QString bare = text::trimmed(note);
        if (!bare.isEmpty()) kept += bare;
    }
    return kept;
}

/// Whether the notes suffice for a sentence. Reads no more notes than needed.
bool isWorthAsking(const QStringList& notes) {
    if (notes.size() < kFewestNotes) return false;
    QString joined;
    for (const QString& note : notes) {
        if (!joined.isEmpty()) joined += QLatin1Char(' ');
        joined += note;
        if (!text::hasAtMost(joined, kFewestCharacters - 1)) return true;
    }
    return false;
}

QString opening(const QString& hoursSummary, const std::optional<QString>& topSkill) {
    QString text = hoursSummary + QLatin1String(" this week");
    if (topSkill) text += QLatin1String(", mostly ") + *topSkill;
    return text + QLatin1String(". ");
}

/// One conversation with the model. Owns the session, so destroying it drops a late answer.
class Conversation final : public NoteNarrative::Request {
public:
    using Done = std::function<void(std::optional<QString>)>;

    Conversation(QString opening, Done done)
        : m_opening(std::move(opening))
        , m_done(std::move(done)) {}

    void begin(LanguageModel& model, const QStringList& notes) {
        m_session = model.openSession(narrativetext::instructions());
        m_session->respond(narrativetext::question(notes),
                           [this](const std::optional<QString>& answer) { takeFirst(answer); });
    }

    void giveUp(Scheduler& scheduler) {
        m_later = scheduler.scheduleOnce(Seconds(0), [this] { finish(std::nullopt); });
    }

private:
    void takeFirst(const std::optional<QString>& answer) {
        const auto sentence = answer ? narrativetext::tidy(*answer) : std::nullopt;
        if (!sentence) return finish(std::nullopt);
        if (narrativetext::wordCount(*sentence) <= kMostWordsAtOnce) return accept(*sentence);
        m_session->respond(narrativetext::shorterPlease(),
                           [this, first = *sentence](const std::optional<QString>& second) {
                               takeSecond(first, second);
                           });
    }

    void takeSecond(const QString& first, const std::optional<QString>& answer) {
        if (!answer) return finish(std::nullopt);
        const auto second = narrativetext::tidy(*answer);
        const bool shorter =
            second && narrativetext::wordCount(*second) < narrativetext::wordCount(first);
        accept(shorter ? *second : first);
    }

    void accept(const QString& sentence) {
        if (narrativetext::wordCount(sentence) > kMostWords) return finish(std::nullopt);
        finish(m_opening + sentence);
    }

    void finish(std::optional<QString> narrative) {
        const Done done = std::move(m_done);
        done(std::move(narrative)); // may destroy this
    }

    const QString m_opening;
    Done m_done;
    std::unique_ptr<LanguageModelSession> m_session;
    TimerHandle m_later;
};

} // namespace

bool NoteNarrative::isAvailable() const { return m_model.isAvailable(); }

NoteNarrative::RequestHandle
NoteNarrative::weekly(const QString& hoursSummary, const std::optional<QString>& topSkill,
                      const QStringList& notes,
                      std::function<void(std::optional<QString>)> done) const {
    auto conversation =
        std::make_unique<Conversation>(opening(hoursSummary, topSkill), std::move(done));
    const QStringList kept = withText(notes);
    if (isWorthAsking(kept) && isAvailable())
        conversation->begin(m_model, kept);
    else
        conversation->giveUp(m_scheduler);
    return conversation;
}

} // namespace vantle
