// Stand-ins for identities that the code under test makes up.
#pragma once

#include <QHash>
#include <QJsonValue>
#include <QString>

namespace vantle::vectors {

/// An id of the form 00000000-0000-4000-8000-nnnnnnnnnnnn in a case stands for some UUID. The first
/// time it is expected, it is bound to the UUID that came at the same place, also within a longer
/// text; from then on the two are the same.
class SymbolicIds {
public:
    /// Binds the symbols that are met for the first time in `expected` to what stands at their
    /// places in `got`. What is no upper-case UUID, or is bound already, binds nothing.
    void bind(const QJsonValue& expected, const QJsonValue& got);

    /// `value` with every bound UUID as its symbol: the form in which answers are compared.
    [[nodiscard]] QJsonValue symbolic(const QJsonValue& value) const;

    /// `value` with every bound symbol as its UUID: the form that goes into the code under test.
    [[nodiscard]] QJsonValue actual(const QJsonValue& value) const;

private:
    void bindText(const QString& expected, const QString& got);

    QHash<QString, QString> m_actualBySymbol;
    QHash<QString, QString> m_symbolByActual;
};

} // namespace vantle::vectors
