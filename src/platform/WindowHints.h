// What a window tells about the application that it belongs to.
#pragma once

#include "platform/FrontmostApp.h"

#include <QCoreApplication>
#include <QString>

#include <functional>
#include <optional>

namespace vantle {

/// Any part may be missing: programs set what they like.
struct WindowHints {
    QString applicationId;           ///< its own word for its desktop entry, as toolkits set it
    QString windowClass;             ///< WM_CLASS: the class
    QString instance;                ///< WM_CLASS: the instance
    std::optional<qint64> processId; ///< only of a process on this machine
    friend bool operator==(const WindowHints&, const WindowHints&) = default;
};

/// Whether it is a window of this program. The number of our process is another one for the server
/// when we run in a sandbox, so the class tells it as well.
[[nodiscard]] inline bool isOurs(const WindowHints& hints) {
    return hints.processId == QCoreApplication::applicationPid() ||
           hints.windowClass.compare(QLatin1String("vantle"), Qt::CaseInsensitive) == 0;
}

/// Turns hints into an application; its texts are empty where the hints say too little. Main
/// thread; called at each switch of windows, so it must answer from memory.
using IdentityResolver = std::function<Application(const WindowHints&)>;

} // namespace vantle
