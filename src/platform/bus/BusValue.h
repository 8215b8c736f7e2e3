// Reading values that another program sent over a bus.
//
// Any thread.
#pragma once

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QLatin1String>
#include <QMetaType>
#include <QRegularExpression>
#include <QString>
#include <QVariant>

#include <optional>

namespace vantle {

/// Returns the value; empty when the sender chose another type, or none. `T` must be known to
/// D-Bus. The bus checks no signal against its interface, and the library takes an array apart as a
/// structure, or the reverse, where it is told to: it ends the process.
template <typename T>
[[nodiscard]] std::optional<T> busValue(const QVariant& value) {
    constexpr auto type = QMetaType::fromType<T>();
    if (value.metaType() == type) return value.value<T>();
    if (value.metaType() != QMetaType::fromType<QDBusArgument>()) return std::nullopt;
    const auto argument = value.value<QDBusArgument>();
    if (argument.currentSignature() != QLatin1String(QDBusMetaType::typeToSignature(type)))
        return std::nullopt;
    return qdbus_cast<T>(argument);
}

/// Whether it is the path of an object, about any other of which the library prints a warning.
[[nodiscard]] inline bool isObjectPath(const QString& text) {
    static const QRegularExpression path(QStringLiteral("^(/|(/[A-Za-z0-9_]+)+)\\z"));
    return path.match(text).hasMatch();
}

} // namespace vantle
