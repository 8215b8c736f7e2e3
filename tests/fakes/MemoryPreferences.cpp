#include "fakes/MemoryPreferences.h"

#include "platform/PreferenceText.h"

namespace vantle::fakes {

std::optional<bool> MemoryPreferences::boolean(const QString& key) const {
    return preferencetext::boolean(m_texts.value(key));
}

std::optional<qint64> MemoryPreferences::integer(const QString& key) const {
    return preferencetext::integer(m_texts.value(key));
}

std::optional<double> MemoryPreferences::number(const QString& key) const {
    return preferencetext::number(m_texts.value(key));
}

std::optional<QString> MemoryPreferences::string(const QString& key) const {
    const auto text = m_texts.find(key);
    return text == m_texts.end() ? std::nullopt : std::optional(*text);
}

void MemoryPreferences::setBoolean(const QString& key, bool value) {
    setString(key, preferencetext::fromBoolean(value));
}

void MemoryPreferences::setInteger(const QString& key, qint64 value) {
    setString(key, preferencetext::fromInteger(value));
}

void MemoryPreferences::setNumber(const QString& key, double value) {
    setString(key, preferencetext::fromNumber(value));
}

void MemoryPreferences::setString(const QString& key, const QString& value) {
    m_texts[key] = value;
    Q_EMIT changed(key);
}

void MemoryPreferences::remove(const QString& key) {
    if (m_texts.remove(key) > 0) Q_EMIT changed(key);
}

void MemoryPreferences::removeAll() {
    const QStringList removed = keys();
    m_texts.clear();
    for (const QString& key : removed)
        Q_EMIT changed(key);
}

} // namespace vantle::fakes
