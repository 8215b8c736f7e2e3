// The card after a session: what joined the wall, and one line for a note.
#pragma once

#include "app/Collaborators.h"
#include "surfaces/cards/CornerCard.h"

#include <QObject>
#include <QPointer>

#include <optional>

namespace vantle {

class StopSummaryModel;

/// The only place where a note is asked for while the memory is fresh, so it is easy to ignore: it
/// takes the keyboard only when it is clicked or asks for the first note, and goes by itself unless
/// the person touches it. Until the next session begins it can be called back for the note. Nothing
/// outranks it in the corner. Main thread.
class StopSummaryController final : public QObject, public collaborators::StopSummary {
    Q_OBJECT

public:
    static constexpr double autoDismissSeconds = 20;
    static constexpr double spotlightDismissSeconds = 45;

    explicit StopSummaryController(const CardEnvironment& environment);
    ~StopSummaryController() override;

    /// A card still up closes as if untouched. `onClose` gets the note, or none, exactly once; at
    /// once where there is no screen.
    void show(const Content& content,
              std::function<void(const std::optional<QString>& note)> onClose) override;

    /// From then on only a card that is still up takes the note of the last session.
    void forgetNote() override;

    /// Gives the keyboard to the note, on the card that is up or, if that went without a note, on
    /// one more. `onClose` is called again for that. Nothing where there is no such session.
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
    QPointer<StopSummaryModel> m_model; ///< of the card that is up
    std::function<void(const std::optional<QString>&)> m_completion;
    std::optional<Last> m_last; ///< the session that can still get a note
};

} // namespace vantle
