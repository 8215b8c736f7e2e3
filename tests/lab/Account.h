// What a disk holds, read without a line of the program's own readers.
#pragma once

#include "platform/FileSystem.h"

#include <QByteArrayList>
#include <QJsonObject>
#include <QJsonValue>
#include <QMap>

#include <optional>

namespace vantle::tests {

/// The data of a user as Qt's JSON reader sees it. Records are kept under their id.
struct Account {
    QMap<QString, QJsonObject> records;
    QStringList doubled;    ///< ids that more than one line has
    QByteArrayList foreign; ///< lines that are no record, in their order
    QByteArray log;         ///< the whole file
    QJsonValue skills;      ///< undefined without a readable file
    QJsonValue rules;       ///< likewise: `{application: ruling}`
    std::optional<QByteArray> exported;
    QStringList files;       ///< paths below the home
    QStringList temporaries; ///< those of them that no operation should leave behind

    /// Of the home of ModelWorld, under the present name of the data directory or the old one.
    [[nodiscard]] static Account of(FileSystem& disk);

    /// The records that start in that whole second.
    [[nodiscard]] QList<QJsonObject> startingAt(qint64 second) const;

    /// Whether the last line lacks its line feed, and whether the file holds a byte that is no
    /// text.
    [[nodiscard]] bool isTorn() const { return !log.isEmpty() && !log.endsWith('\n'); }
    [[nodiscard]] bool isHidden() const;
};

/// Where scripted lives export a picture to.
inline constexpr auto kExportedFile = "/home/ada/Pictures/review.png";

} // namespace vantle::tests
