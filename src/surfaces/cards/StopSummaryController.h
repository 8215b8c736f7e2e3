// The controller of the card after a session.
#pragma once

#include "app/Collaborators.h"
#include "surfaces/cards/CornerCard.h"

#include <QObject>
#include <QPointer>

#include <optional>

namespace vantle {

class StopSummaryModel;

/// Asks for a note while the work is fresh, and is easy to ignore: it takes the keyboard only when
/// clicked or for the first note, and closes itself unless touched. Until the next session starts
/// it can be reopened for the note. Nothing outranks it in the corner. Main thread.
class StopSummaryController final : public QObject, public collaborators::StopSummary {
    Q_OBJECT

public:
    static constexpr double autoDismissSeconds = 20;
    static constexpr double spotlightDismissSeconds = 45;

    explicit StopSummaryController(const CardEnvironment& environment);
    ~StopSummaryController() override;

    /// Closes an earlier card as if untouched. Calls `onClose` exactly once with the note or none;
    /// immediately without a screen.
    void show(const Content& content,
              std::function<void(const std::optional<QString>& note)> onClose) override;

    /// From now on only an open card takes the note of the last session.
    void forgetNote() override;

    /// Focuses the note on the open card, or reopens the card if it closed without a note;
    /// `onClose` is called again then. No effect without such a session.
    void openNote();

private:
    struct Last {
        Content content;
        std::function<void(const std::optional<QString>&)> onClose;
    };

    void present(const Content& content,
                 std::function<void(const std::optional<QString>& note)> onClose);
    void inviteNote();
    void finish(const std::optional<QString>& note);

    CardEnvironment m_env;
    CornerCard m_card;
    QPointer<StopSummaryModel> m_model; ///< of the open card
    std::function<void(const std::optional<QString>&)> m_completion;
    std::optional<Last> m_last; ///< the session that can still get a note
};

} // namespace vantle
