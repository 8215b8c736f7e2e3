// The model of the review window.
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

/// The texts of a review's pages.
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
    QString emptyTitle; ///< shown without pages
    QString emptyText;
};

/// Keeps a copy of the log, read when the window opens and on each change, and computes everything
/// from it. The narrative arrives later, if there is a model, and adds its page. Main thread.
class WrappedView final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the window router.")
    /// The picker.
    Q_PROPERTY(QStringList segmentLabels READ segmentLabels NOTIFY segmentsChanged FINAL)
    Q_PROPERTY(int segmentIndex READ segmentIndex NOTIFY reviewChanged FINAL)

    /// The pager. `cards` are the pages' ids in order, as in "hero".
    Q_PROPERTY(QStringList cards READ cards NOTIFY cardsChanged FINAL)
    Q_PROPERTY(bool hasPager READ hasPager NOTIFY cardsChanged FINAL)
    Q_PROPERTY(int page READ page NOTIFY pageChanged FINAL)
    Q_PROPERTY(QString card READ card NOTIFY pageChanged FINAL)
    Q_PROPERTY(QString pageKey READ pageKey NOTIFY pageChanged FINAL)
    /// Identifies the page together with its card id.
    Q_PROPERTY(QString period READ period NOTIFY pageChanged FINAL)
    Q_PROPERTY(double pageDirection READ pageDirection NOTIFY pageChanged FINAL)
    Q_PROPERTY(bool canTurnBack READ canTurnBack NOTIFY pageChanged FINAL)
    Q_PROPERTY(bool canTurnOn READ canTurnOn NOTIFY pageChanged FINAL)

    /// Whether there are no pages.
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY cardsChanged FINAL)
    Q_PROPERTY(bool canEnter READ canEnter CONSTANT FINAL)
    Q_PROPERTY(QString enterText READ enterText NOTIFY trackingChanged FINAL)

    /// A snapshot; views keep theirs until they read it again.
    Q_PROPERTY(vantle::ReviewTexts texts READ texts NOTIFY reviewChanged FINAL)

    /// The dots that fit the wall on the rhythm page.
    Q_PROPERTY(int wallCapacity READ wallCapacity WRITE setWallCapacity NOTIFY rhythmChanged FINAL)

    /// Sharing. `shareFailure` is shown below the buttons; empty when there is none.
    Q_PROPERTY(bool copied READ copied NOTIFY shareChanged FINAL)
    Q_PROPERTY(QString copyText READ copyText NOTIFY shareChanged FINAL)
    Q_PROPERTY(QString shareFeedback READ shareFeedback NOTIFY shareChanged FINAL)

public:
    enum class Saved { Written, Failed, Cancelled };

    static constexpr double copiedSeconds = 1.6;
    static constexpr std::size_t skillsShown = 6; ///< the top one and five more
    static constexpr std::size_t highlightsShown = 4;

    /// The services of the window. All of them must outlive the model.
    struct Environment {
        NotificationCenter& notifications;
        Preferences& preferences;
        LanguageModel& model;
        const Clock& clock;
        Scheduler& scheduler;
        std::function<Calendar()> calendar;
        std::function<SessionList()> allSessions;
        std::function<std::vector<Skill>()> skills;
        std::optional<WrappedPeriod> initialPeriod; ///< empty: chosen from the log
        /// Starts or stops a session; empty hides the button.
        std::function<void()> enterVantle;

        /// Renders the poster as PNG; empty when out of memory.
        std::function<std::optional<QByteArray>(const SharePoster&)> renderPng;
        std::function<void(const QByteArray& png)> copyPng;
        /// Opens a save dialog with that name and writes the file. Answers now or later.
        std::function<void(const QByteArray& png, const QString& name, std::function<void(Saved)>)>
            savePng;
    };

    /// Reads the log and chooses the period.
    explicit WrappedView(Environment environment);
    ~WrappedView() override;

    /// The window was opened again; keeps the period.
    Q_INVOKABLE void open();

    Q_INVOKABLE void pickSegment(int index);
    Q_INVOKABLE void turnBack() { turn(-1); }
    Q_INVOKABLE void turnOn() { turn(+1); }
    Q_INVOKABLE void showYear(int year);
    Q_INVOKABLE void enterVantle();
    /// Whether a session is open, as told by the owner.
    void setTracking(bool tracking);
    Q_INVOKABLE void copyImage();
    Q_INVOKABLE void saveImage();

    /// The hours counted up to `seconds` after the page appeared.
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
    void reviewChanged();   ///< another period or log
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
    std::optional<int> m_chosenYear; ///< until the page is left
    std::optional<Asked> m_asked;    ///< the last question
    NoteNarrative::RequestHandle m_request;
    TimerHandle m_copiedEnds;
};

} // namespace vantle
