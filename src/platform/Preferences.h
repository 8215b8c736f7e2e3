// The preference store: small typed values under dotted keys, kept between runs.
//
// Main thread. A value that is absent, or that can't be read as the asked type, counts as absent.
// Writing never fails towards the caller: the value holds for this run in any case.
#pragma once

#include <QObject>
#include <QString>

#include <optional>

namespace vantle {

class Preferences : public QObject {
    Q_OBJECT

public:
    [[nodiscard]] virtual std::optional<bool> boolean(const QString& key) const = 0;
    [[nodiscard]] virtual std::optional<qint64> integer(const QString& key) const = 0;
    [[nodiscard]] virtual std::optional<double> number(const QString& key) const = 0;
    [[nodiscard]] virtual std::optional<QString> string(const QString& key) const = 0;

    virtual void setBoolean(const QString& key, bool value) = 0;
    virtual void setInteger(const QString& key, qint64 value) = 0;
    virtual void setNumber(const QString& key, double value) = 0;
    virtual void setString(const QString& key, const QString& value) = 0;

    virtual void remove(const QString& key) = 0;

    /// Removes every key of every part of the program, and the file.
    virtual void removeAll() = 0;

    /// Returns when all changes so far are in the file, as far as that is possible.
    virtual void synchronize() = 0;

Q_SIGNALS:
    /// After any write or removal through this object, within the call.
    void changed(const QString& key);
};

} // namespace vantle
