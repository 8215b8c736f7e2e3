// The command for a key binding that starts and stops sessions.
//
// Any thread.
#pragma once

#include <QString>

namespace vantle {

/// Calls the program over the session bus, which starts it if needed. A desktop may run it at each
/// repeat of a held key; its action counts those as one press.
[[nodiscard]] inline QString toggleCommand() {
    return QStringLiteral("gdbus call --session --dest local.vantle.Vantle "
                          "--object-path /local/vantle/Vantle "
                          "--method org.freedesktop.Application.ActivateAction toggle-by-key "
                          "'[]' '{}'");
}

} // namespace vantle
