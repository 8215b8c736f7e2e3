// What a window tells about the application that it belongs to.
#pragma once

#include "platform/FrontmostApp.h"

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

/// Turns hints into an application; its texts are empty where the hints say too little. Main
/// thread; called at each switch of windows, so it must answer from memory.
using IdentityResolver = std::function<Application(const WindowHints&)>;

} // namespace vantle
