#include "platform/PreferenceText.h"

#include <QLocale>

#include <cmath>

namespace vantle::preferencetext {

std::optional<bool> boolean(const QString& text) {
    const QString word = text.trimmed().toLower();
    if (word == QLatin1String("true") || word == QLatin1String("1")) return true;
    if (word == QLatin1String("false") || word == QLatin1String("0")) return false;
    return std::nullopt;
}

QString fromBoolean(bool value) { return value ? QStringLiteral("true") : QStringLiteral("false"); }

std::optional<qint64> integer(const QString& text) {
    bool ok = false;
    const qint64 value = text.toLongLong(&ok);
    return ok ? std::optional(value) : std::nullopt;
}

QString fromInteger(qint64 value) { return QString::number(value); }

std::optional<double> number(const QString& text) {
    bool ok = false;
    const double value = text.toDouble(&ok);
    return ok && std::isfinite(value) ? std::optional(value) : std::nullopt;
}

QString fromNumber(double value) {
    return QString::number(value, 'g', QLocale::FloatingPointShortest);
}

} // namespace vantle::preferencetext
