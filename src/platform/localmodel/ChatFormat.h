// A conversation in the form that local model servers agree on: chat completions as JSON in a POST.
//
// Pure functions, any thread.
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

/// The whole HTTP request that asks for the next message. Without a `model` the server takes the
/// one that it has. How it chooses its words is left to the server's own settings.
[[nodiscard]] QByteArray request(const QString& model, const std::vector<Message>& conversation);

/// The message in the body of a response; none when there is none in it.
[[nodiscard]] std::optional<QString> answer(const QByteArray& body);

} // namespace vantle::chatformat
