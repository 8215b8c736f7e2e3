#include "surfaces/quicklog/QuickLogWindow.h"

#include "app/AppModel.h"
#include "base/Words.h"
#include "platform/Platform.h"
#include "surfaces/quicklog/QuickLogView.h"
#include "surfaces/window/WindowParts.h"

namespace vantle {

WindowSpec quickLogWindow(const WindowParts& parts) {
    return {.id = WindowId::QuickLog,
            .action = QStringLiteral("quick-log"),
            .rules = {.title = Words::tr("Quick Log")},
            .content = {viewAt("QuickLog/QuickLogForm"), [parts](const auto& close) {
                            return std::make_unique<QuickLogView>(parts.model.flow(), parts.skills,
                                                                  parts.platform.preferences,
                                                                  close);
                        }}};
}

} // namespace vantle
