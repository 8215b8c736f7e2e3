#include "surfaces/notes/NotesWindow.h"

#include "app/AppModel.h"
#include "base/Words.h"
#include "platform/Platform.h"
#include "surfaces/notes/LogView.h"
#include "surfaces/window/WindowParts.h"
#include "tracking/Settings.h"

namespace vantle {

namespace {

std::unique_ptr<QObject> makeModel(const WindowParts& parts) {
    return std::make_unique<LogView>(LogView::Environment{.tracker = parts.model.tracker(),
                                                          .skills = parts.skills,
                                                          .notifications = parts.notifications,
                                                          .preferences = parts.platform.preferences,
                                                          .clock = parts.clock,
                                                          .scheduler = parts.scheduler,
                                                          .calendar = parts.calendar,
                                                          .copy = parts.copy});
}

} // namespace

WindowSpec notesWindow(const WindowParts& parts) {
    return {.id = WindowId::Log,
            .action = QStringLiteral("notes"),
            .door = {Words::tr("Notes")},
            .rules = {.title = Words::tr("Your notes"),
                      .resizable = true,
                      .minContentWidth = 380,
                      .contentSize = {520, 620},
                      .frame = &settings::notesFrame},
            .content = {viewAt("Notes/NotesLogView"),
                        [parts](const auto&) { return makeModel(parts); }}};
}

} // namespace vantle
