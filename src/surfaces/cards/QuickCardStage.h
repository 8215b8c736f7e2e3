// The screen as cards know it: each in a floating panel of its own.
#pragma once

#include "platform/Screens.h"
#include "surfaces/cards/CardStage.h"

#include <QPointer>

#include <functional>
#include <memory>
#include <vector>

class QQmlEngine;

namespace vantle {

class FloatingPanel;
class PanelHost;

/// Main thread.
class QuickCardStage final : public CardStage {
public:
    struct Environment {
        /// The engine to make one more view from; it finds the program's modules.
        std::function<QQmlEngine&()> engine;
        PanelHost& panelHost;
        const Screens& screens;
    };

    /// All of that must outlive the stage, whose windows go with it; the stage must outlive the
    /// panels that it gave.
    explicit QuickCardStage(Environment environment);
    ~QuickCardStage() override;

    [[nodiscard]] std::optional<ScreenShape> cardScreen() const override;
    [[nodiscard]] std::unique_ptr<CardPanel> raise(CardView view,
                                                   std::shared_ptr<QObject> model) override;
    void dismiss(std::unique_ptr<CardPanel> panel) override;
    [[nodiscard]] std::vector<QRect> panelFrames() const override;

private:
    const Environment m_env;
    QRectF m_screenFrame;                           ///< of the screen that the last card came to
    std::vector<QPointer<FloatingPanel>> m_windows; ///< all that there are, fading ones too
};

} // namespace vantle
