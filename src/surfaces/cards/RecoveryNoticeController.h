// The controller of the recovery notice after a crash.
#pragma once

#include "app/Collaborators.h"
#include "surfaces/cards/CornerCard.h"

#include <QObject>

#include <optional>

namespace vantle {

class RecoveryNoticeModel;

/// Has no timeout, and returns when a stop summary that took its corner closes. Without a screen it
/// waits for showWaiting(). Main thread.
class RecoveryNoticeController final : public QObject, public collaborators::Recovery {
    Q_OBJECT

public:
    explicit RecoveryNoticeController(const CardEnvironment& environment);
    ~RecoveryNoticeController() override;

    /// Offers the session. Drops an earlier unanswered offer.
    void show(const Session& session, std::function<void()> onDiscard,
              std::function<void()> onKeep) override;

    /// Removes the notice and drops the offer. Does not touch the corner's slot.
    void hideForEviction() override;

    /// Shows an unanswered offer that is not visible, for when a screen appears.
    void showWaiting();

    /// The user's choice, from the card, the panel or a desktop action; also valid while the notice
    /// waits. No effect without an offer.
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
    /// The identity under which it holds the corner.
    [[nodiscard]] const void* owner() const { return static_cast<const Recovery*>(this); }

    CardEnvironment m_env;
    CornerCard m_card;
    std::optional<Offer> m_offer; ///< visible or waiting
};

} // namespace vantle
