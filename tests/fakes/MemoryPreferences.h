// Preferences in memory, with access to the stored texts. Main thread.
#pragma once

#include "platform/Preferences.h"

#include <QMap>
#include <QStringList>

namespace vantle::fakes {

class MemoryPreferences final : public Preferences {
    Q_OBJECT

public:
    // Preferences
    [[nodiscard]] std::optional<bool> boolean(const QString& key) const override;
    [[nodiscard]] std::optional<qint64> integer(const QString& key) const override;
    [[nodiscard]] std::optional<double> number(const QString& key) const override;
    [[nodiscard]] std::optional<QString> string(const QString& key) const override;
    void setBoolean(const QString& key, bool value) override;
    void setInteger(const QString& key, qint64 value) override;
    void setNumber(const QString& key, double value) override;
    void setString(const QString& key, const QString& value) override;
    void remove(const QString& key) override;
    void removeAll() override;
    void synchronize() override { m_saved = m_texts; }

    /// Stores a text without a signal, like an editor outside the program.
    void setRaw(const QString& key, const QString& text) { m_texts[key] = text; }

    /// Removes a key without a signal.
    void removeRaw(const QString& key) { m_texts.remove(key); }

    /// Returns the stored text; empty when missing.
    [[nodiscard]] std::optional<QString> raw(const QString& key) const { return string(key); }

    /// All texts by their keys.
    [[nodiscard]] const QMap<QString, QString>& texts() const { return m_texts; }
    /// The texts as they were at the last synchronize(), which a loss of power leaves.
    [[nodiscard]] const QMap<QString, QString>& saved() const { return m_saved; }

    /// All keys, sorted.
    [[nodiscard]] QStringList keys() const { return m_texts.keys(); }

private:
    QMap<QString, QString> m_texts;
    QMap<QString, QString> m_saved;
};

} // namespace vantle::fakes
