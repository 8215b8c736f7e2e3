// The notice that offers to keep a session which a crash interrupted.
#pragma once

#include "app/Collaborators.h"
#include "surfaces/cards/CornerCard.h"

#include <QObject>

#include <optional>

namespace vantle {

class RecoveryNoticeModel;

/// Waits as long as it takes: it has no time-out, and comes back by itself when a stop summary that
/// pushed it out of the corner closes. Without a screen it waits for showWaiting(). Main thread.
class RecoveryNoticeController final : public QObject, public collaborators::Recovery {
    Q_OBJECT

public:
    explicit RecoveryNoticeController(const CardEnvironment& environment);
    ~RecoveryNoticeController() override;

    /// Offers the session. An earlier offer without an answer is forgotten.
    void show(const Session& session, std::function<void()> onDiscard,
              std::function<void()> onKeep) override;

    /// Takes the notice down and forgets the offer, so that none that waits comes back. Leaves the
    /// corner alone.
    void hideForEviction() override;

    /// Shows the offer if it has not been answered and is not on the screen; for when a screen
    /// comes.
    void showWaiting();

    /// The person's choice, by a button of the card, in the panel or by an action of the desktop,
    /// which are heard while the notice waits as well. Both do nothing when there is no offer.
    void keep();
    void discard();

private:
    struct Offer {
        Session session;
        std::function<void()> onDiscard;
        std::function<void()> onKeep;
    };

    void present();
    [[nodiscard]] std::shared_ptr<RecoveryNoticeModel> makeModel() const;
    [[nodiscard]] std::optional<Offer> takeOffer();
    /// Known in the corner as the model knows it.
    [[nodiscard]] const void* owner() const { return static_cast<const Recovery*>(this); }

    CardEnvironment m_env;
    CornerCard m_card;
    std::optional<Offer> m_offer; ///< shown or waiting
};

} // namespace vantle
