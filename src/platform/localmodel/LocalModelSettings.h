// The user's choice of a local model server.
//
// A plain value and pure functions, any thread.
#pragma once

#include <QByteArrayView>
#include <QString>

#include <optional>

namespace vantle {

/// The content of "language-model.conf".
struct LocalModelSettings {
    QString socket; ///< absolute path of the server's socket
    QString model;  ///< which of its models; empty where the server has but one

    friend bool operator==(const LocalModelSettings&, const LocalModelSettings&) = default;

    /// A longer file is ignored; in bytes.
    static constexpr qint64 maxFileSize = 4096;

    /// Parses the content; empty when it names no socket or anything is invalid.
    [[nodiscard]] static std::optional<LocalModelSettings> parse(QByteArrayView content);
};

} // namespace vantle
