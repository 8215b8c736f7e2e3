// What the cards need of a screen: windows to stand in, and where there is room.
#pragma once

#include "platform/Placement.h"

#include <QObject>
#include <QRect>
#include <QSize>

#include <memory>
#include <optional>
#include <vector>

namespace vantle {

/// The views that a stage can raise, each over the model of the same name.
enum class CardView { StopSummary, RecoveryNotice, TagPrompt, CorrectionPrompt, RetagToast };

/// A card or toast in a window of its own. To destroy it is to take it off the screen at once.
/// Main thread.
class CardPanel {
public:
    virtual ~CardPanel() = default;

    /// Of what the person sees, without its shadow, in px.
    [[nodiscard]] virtual QSize size() const = 0;

    /// Puts it on the screen, in front of everything, without taking the keyboard.
    virtual void showAt(const Placement& ground) = 0;

    /// Glides there from where it is.
    virtual void moveTo(const Placement& ground) = 0;

    /// Where it stands, or where it is gliding to, without its shadow.
    [[nodiscard]] virtual QRect frame() const = 0;

    virtual void takeKeyboard() = 0;
    virtual void returnKeyboard() = 0;
};

/// The user's screen. Main thread.
class CardStage : public QObject {
    Q_OBJECT

public:
    /// The screen of the cards: the one in use, or the one where a card is up; empty when there is
    /// no screen at all.
    [[nodiscard]] virtual std::optional<ScreenShape> cardScreen() const = 0;

    /// Makes the view over its model, which it keeps alive, and measures it; it is not shown yet.
    /// Cards are as wide as the screen allows. Null when the view can't be made.
    [[nodiscard]] virtual std::unique_ptr<CardPanel> raise(CardView view,
                                                           std::shared_ptr<QObject> model) = 0;

    /// Lets it fade away, deaf to the pointer from now on. The keyboard goes back at once.
    virtual void dismiss(std::unique_ptr<CardPanel> panel) = 0;

    /// Where the other cards and floating panels of the program stand, fading ones left out.
    [[nodiscard]] virtual std::vector<QRect> panelFrames() const = 0;

Q_SIGNALS:
    /// cardScreen() may have changed. Several in a row when the user plugs a screen in or out.
    void cardScreenChanged();
};

} // namespace vantle
