// The port of the preference store: typed values under dotted keys.
//
// Main thread. A missing value, or one of another type, counts as missing. Writing never fails for
// the caller: the value holds for this run at least.
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

    /// Removes all keys and the file.
    virtual void removeAll() = 0;

    /// Returns once all changes are in the file, if that is possible.
    virtual void synchronize() = 0;

Q_SIGNALS:
    /// Emitted inside each write or removal through this object.
    void changed(const QString& key);
};

} // namespace vantle
