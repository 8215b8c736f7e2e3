#include "surfaces/window/WindowKind.h"

#include "tracking/Settings.h"

#include <array>

namespace vantle {

namespace {

std::array<WindowRules, 6> makeTable() {
    return {{{.title = QStringLiteral("Your hours"),
              .resizable = true,
              .minContentWidth = 380,
              .contentSize = {612, 512},
              .frame = &settings::dashboardFrame},
             {.title = QStringLiteral("Wrapped")},
             {.title = QStringLiteral("Your notes"),
              .resizable = true,
              .minContentWidth = 380,
              .contentSize = {520, 620},
              .frame = &settings::notesFrame},
             {.title = QStringLiteral("Quick Log")},
             {.title = QStringLiteral("Welcome")},
             // Its rows scroll under their own title, so less height is no loss.
             {.title = QStringLiteral("Settings"),
              .showsTitle = true,
              .contentSize = {480, 620},
              .scrollableHeight = 240}}};
}

} // namespace

const WindowRules& rulesOf(WindowId id) {
    static const std::array<WindowRules, 6> table = makeTable();
    return table.at(static_cast<std::size_t>(id));
}

} // namespace vantle
