#include "vectors/SymbolicIds.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QRegularExpression>
#include <QUuid>

#include <algorithm>

namespace vantle::vectors {
namespace {

constexpr qsizetype kIdLength = 36;

const QRegularExpression& symbolPattern() {
    static const QRegularExpression pattern(QStringLiteral("00000000-0000-4000-8000-[0-9]{12}"));
    return pattern;
}

bool isCanonical(const QString& text) {
    const QUuid id = QUuid::fromString(text);
    return !id.isNull() && id.toString(QUuid::WithoutBraces).toUpper() == text;
}

QJsonValue replaced(const QJsonValue& value, const QHash<QString, QString>& table) {
    if (value.isString()) {
        QString text = value.toString();
        if (text.size() < kIdLength) return value;
        for (auto entry = table.cbegin(); entry != table.cend(); ++entry)
            text.replace(entry.key(), entry.value());
        return text;
    }
    if (value.isArray()) {
        QJsonArray list;
        for (const QJsonValue item : value.toArray())
            list << replaced(item, table);
        return list;
    }
    if (value.isObject()) {
        QJsonObject object = value.toObject();
        for (auto member = object.begin(); member != object.end(); ++member)
            member.value() = replaced(member.value(), table);
        return object;
    }
    return value;
}

} // namespace

void SymbolicIds::bind(const QJsonValue& expected, const QJsonValue& got) {
    if (expected.isString() && got.isString()) {
        bindText(expected.toString(), got.toString());
    } else if (expected.isArray() && got.isArray()) {
        const QJsonArray a = expected.toArray();
        const QJsonArray b = got.toArray();
        for (qsizetype i = 0; i < std::min(a.size(), b.size()); ++i)
            bind(a.at(i), b.at(i));
    } else if (expected.isObject() && got.isObject()) {
        const QJsonObject a = expected.toObject();
        const QJsonObject b = got.toObject();
        for (auto member = a.begin(); member != a.end(); ++member)
            if (b.contains(member.key())) bind(member.value(), b.value(member.key()));
    }
}

void SymbolicIds::bindText(const QString& expected, const QString& got) {
    for (auto match = symbolPattern().globalMatch(expected); match.hasNext();) {
        const QRegularExpressionMatch found = match.next();
        const QString symbol = found.captured();
        if (m_actualBySymbol.contains(symbol)) continue;
        // Symbol and UUID are equally long, so a text that is right so far has it at this place.
        const QString id = got.mid(found.capturedStart(), kIdLength);
        if (!isCanonical(id) || m_symbolByActual.contains(id)) continue;
        m_actualBySymbol.insert(symbol, id);
        m_symbolByActual.insert(id, symbol);
    }
}

QJsonValue SymbolicIds::symbolic(const QJsonValue& value) const {
    return replaced(value, m_symbolByActual);
}

QJsonValue SymbolicIds::actual(const QJsonValue& value) const {
    return replaced(value, m_actualBySymbol);
}

} // namespace vantle::vectors
