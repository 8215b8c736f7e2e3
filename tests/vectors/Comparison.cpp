#include "vectors/Comparison.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cmath>

namespace vantle::vectors {
namespace {

class Comparer {
public:
    explicit Comparer(const Comparison& comparison) : m_comparison(comparison) {}

    void compare(const QString& path, const QJsonValue& expected, const QJsonValue& got,
                 bool partial) {
        if (expected.isObject() && got.isObject())
            compareObjects(path, expected.toObject(), got.toObject(), partial);
        else if (expected.isArray() && got.isArray())
            compareArrays(path, expected.toArray(), got.toArray(), partial);
        else if (expected.isDouble() && got.isDouble())
            compareNumbers(path, expected, got);
        else if (expected != got)
            m_found << Difference{path, expected, got};
    }

    [[nodiscard]] QList<Difference> found() const { return m_found; }

private:
    void compareNumbers(const QString& path, const QJsonValue& expected, const QJsonValue& got) {
        const double a = expected.toDouble();
        const double b = got.toDouble();
        const double scale = std::max(std::abs(a), std::abs(b));
        const double allowed =
            std::max(m_comparison.absoluteTolerance, m_comparison.relativeTolerance * scale);
        // Written so that a NaN on either side is a difference.
        if (!(a == b || std::abs(a - b) <= allowed)) m_found << Difference{path, expected, got};
    }

    void compareArrays(const QString& path, const QJsonArray& expected, const QJsonArray& got,
                       bool partial) {
        for (qsizetype i = 0; i < std::max(expected.size(), got.size()); ++i) {
            const QString here = path + QLatin1Char('[') + QString::number(i) + QLatin1Char(']');
            const auto at = [i](const QJsonArray& list) {
                return i < list.size() ? list.at(i) : QJsonValue(QJsonValue::Undefined);
            };
            compare(here, at(expected), at(got), partial);
        }
    }

    void compareObjects(const QString& path, const QJsonObject& expected, const QJsonObject& got,
                        bool partial) {
        QStringList keys = expected.keys();
        if (!partial)
            for (const QString& key : got.keys())
                if (!expected.contains(key)) keys << key;
        for (const QString& key : keys) {
            if (m_comparison.ignoredKeys.contains(key)) continue;
            const QString here = path.isEmpty() ? key : path + QLatin1Char('.') + key;
            compare(here, expected.value(key), got.value(key),
                    m_comparison.partialObjects.contains(key));
        }
    }

    const Comparison& m_comparison;
    QList<Difference> m_found;
};

} // namespace

QList<Difference> differences(const QJsonValue& expected, const QJsonValue& got,
                              const Comparison& comparison) {
    Comparer comparer(comparison);
    if (comparison.normalized)
        comparer.compare({}, comparison.normalized(expected), comparison.normalized(got), false);
    else
        comparer.compare({}, expected, got, false);
    return comparer.found();
}

QString jsonText(const QJsonValue& value) {
    if (value.isUndefined()) return QStringLiteral("(absent)");
    // A document holds lists and objects only, so the value goes in a list of one.
    const QByteArray list = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(list.sliced(1, list.size() - 2));
}

} // namespace vantle::vectors
