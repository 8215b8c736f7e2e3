// The review window: a picker of periods above cards that are paged through one at a time.
#pragma once

#include "base/Scheduler.h"
#include "review/HoursCards.h"
#include "review/NotesCards.h"
#include "review/PersonaCard.h"
#include "review/RhythmCard.h"
#include "review/SharePoster.h"
#include "review/WhenCard.h"
#include "review/WrappedReview.h"
#include "review/narrative/NoteNarrative.h"

#include <QObject>

#include <functional>

namespace vantle {

class Clock;
class NotificationCenter;

/// What stands on the pages of a review.
struct ReviewTexts {
    Q_GADGET
    QML_VALUE_TYPE(reviewTexts)
    Q_PROPERTY(vantle::HeroCard hero MEMBER hero CONSTANT)
    Q_PROPERTY(vantle::SkillsCard skills MEMBER skills CONSTANT)
    Q_PROPERTY(vantle::PersonaCard persona MEMBER persona CONSTANT)
    Q_PROPERTY(vantle::RhythmCard rhythm MEMBER rhythm CONSTANT)
    Q_PROPERTY(vantle::WhenCard when MEMBER when CONSTANT)
    Q_PROPERTY(vantle::HighPointsCard highPoints MEMBER highPoints CONSTANT)
    Q_PROPERTY(vantle::MilestonesCard milestones MEMBER milestones CONSTANT)
    Q_PROPERTY(vantle::NarrativeCard narrative MEMBER narrative CONSTANT)
    Q_PROPERTY(vantle::NotesCard notes MEMBER notes CONSTANT)
    Q_PROPERTY(vantle::SummaryCard summary MEMBER summary CONSTANT)
    Q_PROPERTY(vantle::SharePoster poster MEMBER poster CONSTANT)
    Q_PROPERTY(QString emptyTitle MEMBER emptyTitle CONSTANT)
    Q_PROPERTY(QString emptyText MEMBER emptyText CONSTANT)

public:
    HeroCard hero;
    SkillsCard skills;
    PersonaCard persona;
    RhythmCard rhythm;
    WhenCard when;
    HighPointsCard highPoints;
    MilestonesCard milestones;
    NarrativeCard narrative;
    NotesCard notes;
    SummaryCard summary;
    SharePoster poster;
    QString emptyTitle; ///< stands there without pages
    QString emptyText;
};

/// What the window shows and does. Holds a copy of the log, which it reads when the window opens
/// and on every change; everything else is computed from it. The sentence about the notes comes
/// later, if there is a model to write it, and its card with it. Main thread.
class WrappedView final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the window router.")
    /// The picker.
    Q_PROPERTY(QStringList segmentLabels READ segmentLabels NOTIFY segmentsChanged FINAL)
    Q_PROPERTY(int segmentIndex READ segmentIndex NOTIFY reviewChanged FINAL)

    /// The pager. `cards` are the ids of the pages in order, as in "hero".
    Q_PROPERTY(QStringList cards READ cards NOTIFY cardsChanged FINAL)
    Q_PROPERTY(bool hasPager READ hasPager NOTIFY cardsChanged FINAL)
    Q_PROPERTY(int page READ page NOTIFY pageChanged FINAL)
    Q_PROPERTY(QString card READ card NOTIFY pageChanged FINAL)
    Q_PROPERTY(QString pageKey READ pageKey NOTIFY pageChanged FINAL)
    /// With the card it tells which page is shown, wherever that stands among the others.
    Q_PROPERTY(QString period READ period NOTIFY pageChanged FINAL)
    Q_PROPERTY(double pageDirection READ pageDirection NOTIFY pageChanged FINAL)
    Q_PROPERTY(bool canTurnBack READ canTurnBack NOTIFY pageChanged FINAL)
    Q_PROPERTY(bool canTurnOn READ canTurnOn NOTIFY pageChanged FINAL)

    /// There are no pages.
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY cardsChanged FINAL)
    Q_PROPERTY(bool canEnter READ canEnter CONSTANT FINAL)
    Q_PROPERTY(QString enterText READ enterText NOTIFY trackingChanged FINAL)

    /// A copy, as it is now. Views show it until they ask for another.
    Q_PROPERTY(vantle::ReviewTexts texts READ texts NOTIFY reviewChanged FINAL)

    /// How many dots the wall on the rhythm page has room for.
    Q_PROPERTY(int wallCapacity READ wallCapacity WRITE setWallCapacity NOTIFY rhythmChanged FINAL)

    /// Sharing. A failure stands under the buttons; empty when there is none.
    Q_PROPERTY(bool copied READ copied NOTIFY shareChanged FINAL)
    Q_PROPERTY(QString copyText READ copyText NOTIFY shareChanged FINAL)
    Q_PROPERTY(QString shareFeedback READ shareFeedback NOTIFY shareChanged FINAL)

public:
    enum class Saved { Written, Failed, Cancelled };

    static constexpr double copiedSeconds = 1.6;
    static constexpr std::size_t skillsShown = 6; ///< the top one and five below
    static constexpr std::size_t highlightsShown = 4;

    /// What the window works with. All of it must outlive the view.
    struct Environment {
        NotificationCenter& notifications;
        Preferences& preferences;
        LanguageModel& model;
        const Clock& clock;
        Scheduler& scheduler;
        std::function<Calendar()> calendar;
        std::function<std::vector<Session>()> allSessions;
        std::function<std::vector<Skill>()> skills;
        std::optional<WrappedPeriod> initialPeriod; ///< none: the view finds one
        /// Starts a session, or stops the open one; may be empty: then nothing offers it.
        std::function<void()> enterVantle;

        /// The poster as PNG; nothing when it can't be drawn.
        std::function<std::optional<QByteArray>(const SharePoster&)> renderPng;
        std::function<void(const QByteArray& png)> copyPng;
        /// Asks for a place, suggesting the name, and writes there. Answers at once or later.
        std::function<void(const QByteArray& png, const QString& name, std::function<void(Saved)>)>
            savePng;
    };

    /// Reads the log and settles the period.
    explicit WrappedView(Environment environment);
    ~WrappedView() override;

    /// The window has come up once more; the period that it had stays.
    Q_INVOKABLE void open();

    Q_INVOKABLE void pickSegment(int index);
    Q_INVOKABLE void turnBack() { turn(-1); }
    Q_INVOKABLE void turnOn() { turn(+1); }
    Q_INVOKABLE void showYear(int year);
    Q_INVOKABLE void enterVantle();
    /// Whether a session is open, which the view does not see by itself.
    void setTracking(bool tracking);
    Q_INVOKABLE void copyImage();
    Q_INVOKABLE void saveImage();

    /// The big figure `seconds` after its page came, on its way up.
    Q_INVOKABLE [[nodiscard]] vantle::ReviewFigure countedUp(double seconds) const;

    [[nodiscard]] const WrappedReview& review() const { return m_review; }

    [[nodiscard]] QStringList segmentLabels() const { return m_segments; }
    [[nodiscard]] int segmentIndex() const;
    [[nodiscard]] QStringList cards() const { return m_cards; }
    [[nodiscard]] bool hasPager() const { return m_cards.size() > 1; }
    [[nodiscard]] int page() const { return m_review.page(); }
    [[nodiscard]] QString card() const { return m_cards.value(page()); }
    [[nodiscard]] QString pageKey() const { return m_review.pageKey(); }
    [[nodiscard]] QString period() const { return wrappedperiod::id(m_review.period()); }
    [[nodiscard]] double pageDirection() const { return m_review.pageDirection(); }
    [[nodiscard]] bool canTurnBack() const { return page() > 0; }
    [[nodiscard]] bool canTurnOn() const { return page() + 1 < m_cards.size(); }
    [[nodiscard]] bool isEmpty() const { return m_cards.isEmpty(); }
    [[nodiscard]] bool canEnter() const { return static_cast<bool>(m_env.enterVantle); }
    [[nodiscard]] QString enterText() const;
    [[nodiscard]] const ReviewTexts& texts() const { return m_texts; }
    [[nodiscard]] int wallCapacity() const { return m_wallCapacity; }
    void setWallCapacity(int capacity);
    [[nodiscard]] bool copied() const { return m_review.isCopied(); }
    [[nodiscard]] QString copyText() const;
    [[nodiscard]] QString shareFeedback() const;

Q_SIGNALS:
    void segmentsChanged(); ///< other periods to choose from
    void reviewChanged();   ///< another period or another log
    void cardsChanged();
    void pageChanged();
    void rhythmChanged();
    void shareChanged();
    void trackingChanged();

private:
    struct Asked {
        WrappedPeriod period;
        wrappedreview::NarrativeQuestion question;
        friend bool operator==(const Asked&, const Asked&) = default;
    };

    void reload();
    void turn(int by);
    [[nodiscard]] WrappedSettings settings() const;
    void showSegments();
    void showReview();
    void showRhythm();
    void showCards();
    void synthesizeNarrative();
    [[nodiscard]] std::optional<QByteArray> renderedPoster();
    void setCopied(bool copied);
    void setShareFeedback(std::optional<QString> feedback);

    const Environment m_env;
    const NoteNarrative m_narrator;
    WrappedReview m_review;
    ReviewTexts m_texts;
    QStringList m_segments;
    QStringList m_cards;
    int m_wallCapacity = 48;
    bool m_tracking = false;
    std::optional<int> m_chosenYear; ///< for as long as the page stays
    std::optional<Asked> m_asked;    ///< what the last question was
    NoteNarrative::RequestHandle m_request;
    TimerHandle m_copiedEnds;
};

} // namespace vantle
