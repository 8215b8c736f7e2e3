// A file's content and mode as they stand in a case.
#pragma once

#include <QByteArray>
#include <QJsonValue>

#include <optional>

namespace vantle::vectors {

struct FileImage {
    QByteArray bytes;
    int mode = 0600;
    friend bool operator==(const FileImage&, const FileImage&) = default;
};

/// The image that `value` describes: null or absent for no file, `{"text": s}` for the UTF-8 of s,
/// `{"base64": b}` for other bytes, each with an octal `mode`, 0600 where it is missing.
[[nodiscard]] std::optional<FileImage> imageFromJson(const QJsonValue& value);

/// The description of `image`; as text exactly when the bytes are UTF-8.
[[nodiscard]] QJsonValue imageToJson(const std::optional<FileImage>& image);

} // namespace vantle::vectors
