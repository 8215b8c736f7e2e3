// Which model server of this machine the person wants to be used, if any.
//
// A plain value and pure functions, any thread.
#pragma once

#include <QByteArrayView>
#include <QString>

#include <optional>

namespace vantle {

/// What stands in the file "language-model.conf".
struct LocalModelSettings {
    QString socket; ///< absolute path of the server's socket
    QString model;  ///< which of its models; empty where the server has but one

    friend bool operator==(const LocalModelSettings&, const LocalModelSettings&) = default;

    /// The longest file that is read, in bytes.
    static constexpr qint64 maxFileSize = 4096;

    /// The settings in such a file's content. None when it names no socket, or anything is wrong.
    [[nodiscard]] static std::optional<LocalModelSettings> parse(QByteArrayView content);
};

} // namespace vantle
