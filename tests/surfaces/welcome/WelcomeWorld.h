// The welcome over the whole model, on virtual time.
#pragma once

#include "app/ModelWorld.h"
#include "surfaces/welcome/WelcomeView.h"
#include "tracking/Settings.h"

#include <optional>

namespace vantle::tests {

class WelcomeWorld : public ModelWorld {
public:
    WelcomeWorld() {
        settings::welcomeDone.remove(preferences);
        idleSource.fix(0); // the user is always present
    }

    [[nodiscard]] static QString text(const char* utf8) { return QString::fromUtf8(utf8); }

    /// Opens the welcome of a first launch, or of the current one.
    WelcomeView& open() {
        if (!model) launch();
        view.emplace(WelcomeView::Environment{.model = *model,
                                              .notifications = notifications,
                                              .preferences = preferences,
                                              .reducedMotion = reducedMotion,
                                              .scheduler = time,
                                              .orderOut = [this] { isInSight = false; },
                                              .bringForward =
                                                  [this] {
                                                      isInSight = true;
                                                      ++broughtForward;
                                                  },
                                              .openWrapped = [this] { ++wrappedOpened; },
                                              .onClose = [this] { ++closed; },
                                              .isInFront = [this] { return isInFront; }});
        return *view;
    }
    /// Presses main buttons up to the step, practice included.
    void walkTo(int step) {
        while (view->step() < step) {
            if (view->step() == welcometext::Stop) {
                endPractice();
                continue;
            }
            view->pressPrimary();
            settle();
        }
    }
    /// Presses the shortcut at its step.
    void beginPractice() {
        walkTo(welcometext::Press);
        press();
    }
    void endPractice() {
        press();
        closeCard();
    }
    /// The card after a session closes.
    void closeCard() {
        if (told.closeSummary) told.closeSummary(std::nullopt);
        Q_EMIT notifications.HFStopSummaryResolved();
    }

    std::optional<WelcomeView> view;
    bool isInSight = true;
    bool isInFront = true;
    int broughtForward = 0;
    int wrappedOpened = 0;
    int closed = 0;
};

} // namespace vantle::tests
