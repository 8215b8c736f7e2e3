// The hours window of a program on a virtual disk, clock and desktop.
#pragma once

#include "app/ModelWorld.h"
#include "surfaces/dashboard/DashboardView.h"

#include <optional>

namespace vantle::tests {

class DashboardWorld : protected ModelWorld {
protected:
    DashboardView& open() {
        idleSource.fix(0);
        if (!model) launch();
        return view.emplace(DashboardView::Environment{
            model->flow(), *skills, notifications, preferences, time, time,
            [] {
                return Calendar{QStringLiteral("UTC"), 1, 1};
            },
            [this] { ++quickLogs; }, [this] { ++reviews; }});
    }

    int quickLogs = 0;
    int reviews = 0;
    std::optional<DashboardView> view;
};

} // namespace vantle::tests
