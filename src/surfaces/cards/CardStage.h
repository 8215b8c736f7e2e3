// The interface from the cards' controllers to a screen.
#pragma once

#include "platform/Placement.h"

#include <QObject>
#include <QRect>
#include <QSize>

#include <memory>
#include <optional>
#include <vector>

namespace vantle {

/// The views that a stage can show, each with the model of the same name.
enum class CardView { StopSummary, RecoveryNotice, TagPrompt, CorrectionPrompt, RetagToast };

/// A card or toast in its own window. Destroying it removes it from the screen immediately. Main
/// thread.
class CardPanel {
public:
    virtual ~CardPanel() = default;

    /// The visible size without the shadow, in px.
    [[nodiscard]] virtual QSize size() const = 0;

    /// Shows it above other windows, without keyboard focus.
    virtual void showAt(const Placement& ground) = 0;

    /// Slides it to that place.
    virtual void moveTo(const Placement& ground) = 0;

    /// Its place, or the target of its slide, without the shadow.
    [[nodiscard]] virtual QRect frame() const = 0;

    virtual void takeKeyboard() = 0;
    virtual void returnKeyboard() = 0;
};

/// The user's screen. Main thread.
class CardStage : public QObject {
    Q_OBJECT

public:
    /// The screen for cards: that of an open card, else the one in use; empty without a screen.
    [[nodiscard]] virtual std::optional<ScreenShape> cardScreen() const = 0;

    /// Creates and measures the view, hidden; it keeps its model alive. Cards are as wide as the
    /// screen allows. Returns null when the view is invalid.
    [[nodiscard]] virtual std::unique_ptr<CardPanel> raise(CardView view,
                                                           std::shared_ptr<QObject> model) = 0;

    /// Fades it out, without pointer input. Returns the keyboard at once.
    virtual void dismiss(std::unique_ptr<CardPanel> panel) = 0;

    /// The places of the program's other cards and floating panels, without those fading out.
    [[nodiscard]] virtual std::vector<QRect> panelFrames() const = 0;

Q_SIGNALS:
    /// cardScreen() may have changed. Plugging a screen in or out emits it several times.
    void cardScreenChanged();
};

} // namespace vantle
