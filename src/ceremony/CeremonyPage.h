// The contract with a ceremony page: what it is told before it begins, and what it says.
//
// Plain functions, usable on any thread.
#pragma once

#include "app/Collaborators.h"
#include "ceremony/show/CeremonyVariant.h"

#include <QByteArray>
#include <QJsonValue>
#include <QString>
#include <QUrl>

namespace vantle::ceremonypage {

/// The page's configuration as a JSON object in ASCII, fit to stand in a script. `blackout` is how
/// dark the page may make the screen. A title that is no Unicode text gives the plain one.
[[nodiscard]] QByteArray configuration(CeremonyShow show, CeremonyVariant variant,
                                       std::uint32_t hexRGB,
                                       const std::optional<QString>& skillName, bool blackout);

/// The statement that gives the page its configuration.
[[nodiscard]] QString script(const QByteArray& configuration);

enum class Message {
    None,    ///< anything else, to be ignored
    Started, ///< the page has begun its animation
    Done,    ///< the page has finished
};
/// What the body of a message says.
[[nodiscard]] Message messageOf(const QJsonValue& body);

/// Whether the page in the file `page` may load `address`: itself, a file in its own folder or
/// below it, or data that it carries along. A link counts as what it leads to. Reads the disk.
[[nodiscard]] bool mayLoad(const QString& page, const QUrl& address);

} // namespace vantle::ceremonypage
