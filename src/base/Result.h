// The result of an operation with a possible failure.
//
// A Result must be checked, and its error always names operation and file. No exception leaves a
// folder. Plain values, any thread.
#pragma once

#include <QString>

#include <optional>
#include <utility>
#include <variant>

namespace vantle {

/// What failed, on which file, and the platform's message.
struct Error {
    int code = 0;      ///< errno, or 0 where there is none
    QString operation; ///< as in "write"
    QString path;      ///< the file or directory concerned
    QString text;      ///< the platform's text for the code, or the program's own

    /// The platform's text with the operation and the file: "No space left on device (write
    /// /home/ada/.local/share/Vantle/sessions.jsonl)".
    [[nodiscard]] QString description() const;

    /// An error made from errno.
    [[nodiscard]] static Error fromErrno(int code, const QString& operation, const QString& path);
};

template <typename T = void>
class [[nodiscard]] Result {
public:
    Result(T value) : m_outcome(std::in_place_index<0>, std::move(value)) {}
    Result(Error error) : m_outcome(std::in_place_index<1>, std::move(error)) {}

    [[nodiscard]] bool ok() const { return m_outcome.index() == 0; }
    explicit operator bool() const { return ok(); }

    /// Returns the value. Requires ok().
    [[nodiscard]] T& value() { return std::get<0>(m_outcome); }
    [[nodiscard]] const T& value() const { return std::get<0>(m_outcome); }

    /// Returns the error. Requires that ok() is false.
    [[nodiscard]] const Error& error() const { return std::get<1>(m_outcome); }

    /// Marks a failure as deliberately ignored.
    void ignore() const {}

private:
    std::variant<T, Error> m_outcome;
};

template <>
class [[nodiscard]] Result<void> {
public:
    Result() = default;
    Result(Error error) : m_error(std::move(error)) {}

    [[nodiscard]] bool ok() const { return !m_error.has_value(); }
    explicit operator bool() const { return ok(); }
    [[nodiscard]] const Error& error() const { return *m_error; }
    void ignore() const {}

private:
    std::optional<Error> m_error;
};

} // namespace vantle
