// A file's content and mode in a case.
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

/// Parses an image: null or absent for no file, `{"text": s}` for UTF-8, `{"base64": b}` for other
/// bytes, each with an octal `mode`, default 0600.
[[nodiscard]] std::optional<FileImage> imageFromJson(const QJsonValue& value);

/// Describes an image; as text if its bytes are UTF-8.
[[nodiscard]] QJsonValue imageToJson(const std::optional<FileImage>& image);

} // namespace vantle::vectors
