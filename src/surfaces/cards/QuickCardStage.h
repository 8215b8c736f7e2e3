// The card stage of floating panels.
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
        /// Returns the engine for another view, which keeps it until destroyed; it must find the
        /// program's modules.
        std::function<std::shared_ptr<QQmlEngine>()> engine;
        PanelHost& panelHost;
        const Screens& screens;
    };

    /// All of it must outlive the stage, whose windows are destroyed with it; the stage must
    /// outlive its panels.
    explicit QuickCardStage(Environment environment);
    ~QuickCardStage() override;

    [[nodiscard]] std::optional<ScreenShape> cardScreen() const override;
    [[nodiscard]] std::unique_ptr<CardPanel> raise(CardView view,
                                                   std::shared_ptr<QObject> model) override;
    void dismiss(std::unique_ptr<CardPanel> panel) override;
    [[nodiscard]] std::vector<QRect> panelFrames() const override;

private:
    const Environment m_env;
    QRectF m_screenFrame;                           ///< of the last card's screen
    std::vector<QPointer<FloatingPanel>> m_windows; ///< all, including those fading out
};

} // namespace vantle
