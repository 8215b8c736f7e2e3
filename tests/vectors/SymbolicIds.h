// Symbols for ids that the code under test generates.
#pragma once

#include <QHash>
#include <QJsonValue>
#include <QString>

namespace vantle::vectors {

/// An id 00000000-0000-4000-8000-nnnnnnnnnnnn in a case is a symbol for some UUID. On first use it
/// is bound to the UUID at the same place, also within a longer text; from then on both are equal.
class SymbolicIds {
public:
    /// Binds symbols that are new in `expected` to the upper-case UUIDs at their places in `got`,
    /// unless these are bound already.
    void bind(const QJsonValue& expected, const QJsonValue& got);

    /// Returns `value` with symbols for bound UUIDs, for comparison.
    [[nodiscard]] QJsonValue symbolic(const QJsonValue& value) const;

    /// Returns `value` with UUIDs for bound symbols, for the code under test.
    [[nodiscard]] QJsonValue actual(const QJsonValue& value) const;

private:
    void bindText(const QString& expected, const QString& got);

    QHash<QString, QString> m_actualBySymbol;
    QHash<QString, QString> m_symbolByActual;
};

} // namespace vantle::vectors
