// The command that starts and stops sessions, for keys that the user binds.
#pragma once

#include <QString>

namespace vantle {

/// Reaches the program over the session bus, which starts it where it does not run.
[[nodiscard]] inline QString toggleCommand() {
    return QStringLiteral("gdbus call --session --dest local.vantle.Vantle "
                          "--object-path /local/vantle/Vantle "
                          "--method org.freedesktop.Application.ActivateAction toggle '[]' '{}'");
}

} // namespace vantle
