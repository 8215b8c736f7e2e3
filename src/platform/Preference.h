// A typed preference: key, default and limits.
//
// Main thread, as the store.
#pragma once

#include "base/Calendar.h"
#include "platform/Preferences.h"

#include <QLatin1String>
#include <QObject>
#include <QString>

#include <algorithm>
#include <limits>
#include <optional>
#include <type_traits>
#include <utility>

namespace vantle {

/// How a type T is stored. An enumeration specialises it beside its declaration.
template <typename T>
struct PreferenceForm;

template <>
struct PreferenceForm<bool> {
    static std::optional<bool> read(const Preferences& store, const QString& key) {
        return store.boolean(key);
    }
    static void write(Preferences& store, const QString& key, bool value) {
        store.setBoolean(key, value);
    }
};

template <>
struct PreferenceForm<qint64> {
    static std::optional<qint64> read(const Preferences& store, const QString& key) {
        return store.integer(key);
    }
    static void write(Preferences& store, const QString& key, qint64 value) {
        store.setInteger(key, value);
    }
};

template <>
struct PreferenceForm<double> {
    static std::optional<double> read(const Preferences& store, const QString& key) {
        return store.number(key);
    }
    static void write(Preferences& store, const QString& key, double value) {
        store.setNumber(key, value);
    }
};

template <>
struct PreferenceForm<QString> {
    static std::optional<QString> read(const Preferences& store, const QString& key) {
        return store.string(key);
    }
    static void write(Preferences& store, const QString& key, const QString& value) {
        store.setString(key, value);
    }
};

/// Which stored values are valid: all, for most types.
template <typename T>
struct PreferenceLimits {
    [[nodiscard]] std::optional<T> within(T value) const { return value; }
};

/// A stored number below `least` counts as missing, one above `most` as `most`.
template <>
struct PreferenceLimits<double> {
    /// For `least`: every positive number is valid.
    static constexpr double aboveZero = std::numeric_limits<double>::denorm_min();

    double least = std::numeric_limits<double>::lowest();
    double most = std::numeric_limits<double>::max();

    [[nodiscard]] std::optional<double> within(double value) const {
        return value >= least ? std::optional(std::min(value, most)) : std::nullopt;
    }
};

/// Reads and writes one key. Limits apply to reading only; writes are stored unchanged. Main
/// thread.
template <typename T>
class Preference {
public:
    /// The default of a text is empty unless given.
    using Default = std::conditional_t<std::is_same_v<T, QString>, QLatin1String, T>;

    constexpr explicit Preference(const char* key, Default fallback = {},
                                  PreferenceLimits<T> limits = {})
        : m_key(key)
        , m_default(fallback)
        , m_limits(limits) {}

    [[nodiscard]] constexpr QLatin1String key() const { return m_key; }
    [[nodiscard]] T defaultValue() const { return T(m_default); }

    /// Returns the stored value; empty when it is missing, of another type, or outside the limits.
    [[nodiscard]] std::optional<T> stored(const Preferences& store) const {
        const std::optional<T> value = PreferenceForm<T>::read(store, m_key);
        return value ? m_limits.within(*value) : std::nullopt;
    }

    /// Returns what is stored, else the default.
    [[nodiscard]] T read(const Preferences& store) const {
        return stored(store).value_or(defaultValue());
    }

    void write(Preferences& store, const T& value) const {
        PreferenceForm<T>::write(store, m_key, value);
    }

    void remove(Preferences& store) const { store.remove(m_key); }

    /// Calls `told` inside each write and removal of the key, while `context` lives.
    template <typename Told>
    QMetaObject::Connection watch(const Preferences& store, const QObject* context,
                                  Told told) const {
        return QObject::connect(&store, &Preferences::changed, context,
                                [key = m_key, told = std::move(told)](const QString& changed) {
                                    if (changed == key) told();
                                });
    }

private:
    QLatin1String m_key;
    Default m_default;
    PreferenceLimits<T> m_limits;
};

/// One flag per calendar week, default false, under keys such as "reviewed.2026-9".
class WeekFlag {
public:
    constexpr explicit WeekFlag(const char* prefix) : m_prefix(prefix) {}

    [[nodiscard]] QString key(Calendar::WeekOfYear week) const {
        return QStringLiteral("%1.%2-%3")
            .arg(m_prefix)
            .arg(week.yearForWeekOfYear)
            .arg(week.weekOfYear);
    }

    [[nodiscard]] bool read(const Preferences& store, Calendar::WeekOfYear week) const {
        return store.boolean(key(week)).value_or(false);
    }

    void write(Preferences& store, Calendar::WeekOfYear week, bool value) const {
        store.setBoolean(key(week), value);
    }

private:
    QLatin1String m_prefix;
};

} // namespace vantle
