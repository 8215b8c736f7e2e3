// A card stage that records its cards.
#pragma once

#include "surfaces/cards/CardStage.h"

#include <algorithm>
#include <vector>

namespace vantle::fakes {

class FakeCardStage;

class FakeCardPanel final : public CardPanel {
public:
    FakeCardPanel(FakeCardStage& stage, CardView view, std::shared_ptr<QObject> model);
    ~FakeCardPanel() override;

    [[nodiscard]] QSize size() const override { return m_frame.size(); }
    void showAt(const Placement& placement) override {
        m_frame = placement.ground();
        isShown = true;
    }
    void moveTo(const Placement& placement) override {
        m_frame = placement.ground();
        ++moves;
    }
    [[nodiscard]] QRect frame() const override { return m_frame; }
    void takeKeyboard() override { hasKeyboard = true; }
    void returnKeyboard() override { hasKeyboard = false; }

    const CardView view;
    const std::shared_ptr<QObject> model;
    bool isShown = false;
    bool hasKeyboard = false;
    int moves = 0;

private:
    FakeCardStage& m_stage;
    QRect m_frame;
};

class FakeCardStage final : public CardStage {
public:
    [[nodiscard]] std::optional<ScreenShape> cardScreen() const override {
        if (!screen) return std::nullopt;
        return ScreenShape{.frame = *screen, .available = *screen};
    }
    [[nodiscard]] std::unique_ptr<CardPanel> raise(CardView view,
                                                   std::shared_ptr<QObject> model) override {
        ++raised;
        return std::make_unique<FakeCardPanel>(*this, view, std::move(model));
    }
    void dismiss(std::unique_ptr<CardPanel> panel) override {
        ++dismissed;
        panel.reset();
    }
    [[nodiscard]] std::vector<QRect> panelFrames() const override {
        std::vector<QRect> frames = others;
        for (const FakeCardPanel* panel : panels)
            if (panel->isShown && panel->view != CardView::RetagToast)
                frames.push_back(panel->frame());
        return frames;
    }

    /// Changes the screen, or removes it.
    void moveTo(const std::optional<QRect>& other) {
        screen = other;
        Q_EMIT cardScreenChanged();
    }

    /// Returns the panel with that view; null when there is none.
    [[nodiscard]] FakeCardPanel* up(CardView view) const {
        const auto found = std::find_if(panels.begin(), panels.end(), [view](const auto* panel) {
            return panel->isShown && panel->view == view;
        });
        return found == panels.end() ? nullptr : *found;
    }
    template <typename Model>
    [[nodiscard]] Model* modelOf(CardView view) const {
        return up(view) ? qobject_cast<Model*>(up(view)->model.get()) : nullptr;
    }

    /// The screen of the cards, without bars.
    std::optional<QRect> screen = QRect(0, 28, 1440, 872);
    QSize cardSize{380, 263};
    QSize toastSize{206, 40};
    std::vector<QRect> others; ///< panels of other owners
    std::vector<FakeCardPanel*> panels;
    int raised = 0;
    int dismissed = 0;
};

inline FakeCardPanel::FakeCardPanel(FakeCardStage& stage, CardView shownView,
                                    std::shared_ptr<QObject> shownModel)
    : view(shownView)
    , model(std::move(shownModel))
    , m_stage(stage)
    , m_frame(QPoint(), shownView == CardView::RetagToast ? stage.toastSize : stage.cardSize) {
    m_stage.panels.push_back(this);
}

inline FakeCardPanel::~FakeCardPanel() { std::erase(m_stage.panels, this); }

} // namespace vantle::fakes
