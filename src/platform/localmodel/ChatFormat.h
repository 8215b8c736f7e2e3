// The chat completions protocol of local model servers.
//
// JSON over HTTP POST. Pure functions, any thread.
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

namespace vantle::chatformat {

enum class Role { System, User, Assistant };

struct Message {
    Role role = Role::User;
    QString text;
};

/// Returns the whole HTTP request for the next message. Without `model` the server uses its
/// default. Sampling is left to the server's settings.
[[nodiscard]] QByteArray request(const QString& model, const std::vector<Message>& conversation);

/// Returns the message in a response body; empty when there is none.
[[nodiscard]] std::optional<QString> answer(const QByteArray& body);

} // namespace vantle::chatformat
