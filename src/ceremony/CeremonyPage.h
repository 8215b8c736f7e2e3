// The protocol between the program and a ceremony page.
//
// Pure functions, any thread, except mayLoad().
#pragma once

#include "app/Collaborators.h"
#include "ceremony/show/CeremonyVariant.h"

#include <QByteArray>
#include <QJsonValue>
#include <QString>
#include <QUrl>

namespace vantle::ceremonypage {

/// Returns the page's configuration as an ASCII JSON object, safe inside a script. `blackout` tells
/// whether the page may darken the screen. A title that is not valid Unicode is replaced by the
/// plain one.
[[nodiscard]] QByteArray configuration(CeremonyShow show, CeremonyVariant variant,
                                       std::uint32_t hexRGB,
                                       const std::optional<QString>& skillName, bool blackout);

/// Returns the script statement that passes the configuration to the page.
[[nodiscard]] QString script(const QByteArray& configuration);

enum class Message {
    None,    ///< unknown; ignored
    Started, ///< the page has begun its animation
    Done,    ///< the page has finished
};
/// Returns the meaning of a message's body.
[[nodiscard]] Message messageOf(const QJsonValue& body);

/// Whether the page in the file `page` may load `address`: itself, a file in or below its own
/// folder, or a data URL. Links are resolved. Reads the disk.
[[nodiscard]] bool mayLoad(const QString& page, const QUrl& address);

} // namespace vantle::ceremonypage
