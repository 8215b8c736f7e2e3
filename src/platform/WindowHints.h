// A window's hints about its application.
#pragma once

#include "platform/FrontmostApp.h"

#include <QCoreApplication>
#include <QString>

#include <functional>
#include <optional>

namespace vantle {

/// Any part may be missing: programs set them as they like. Plain values; any thread.
struct WindowHints {
    QString applicationId;           ///< the desktop entry that the toolkit names
    QString windowClass;             ///< WM_CLASS: the class
    QString instance;                ///< WM_CLASS: the instance
    std::optional<qint64> processId; ///< only of a process on this machine
    friend bool operator==(const WindowHints&, const WindowHints&) = default;
};

/// Whether it is the program's own window. In a sandbox the server knows the process by another
/// number, so the class counts too.
[[nodiscard]] inline bool isOurs(const WindowHints& hints) {
    return hints.processId == QCoreApplication::applicationPid() ||
           hints.windowClass.compare(QLatin1String("vantle"), Qt::CaseInsensitive) == 0;
}

/// Resolves hints to an application; its texts are empty when the hints do not suffice. Called at
/// each switch of windows, so it must answer from memory. Main thread.
using IdentityResolver = std::function<Application(const WindowHints&)>;

} // namespace vantle
