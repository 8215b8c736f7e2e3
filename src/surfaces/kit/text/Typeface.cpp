#include "surfaces/kit/text/Typeface.h"

#include <QFont>
#include <QFontDatabase>
#include <QStringList>

namespace vantle {
namespace {

constexpr double kStandInTracking = -0.004;

} // namespace

const Typeface& Typeface::text() {
    static const Typeface face = [] {
        const QString family = QStringLiteral("Inter");
        QFont::insertSubstitutions(family,
                                   {QStringLiteral("Noto Sans"), QStringLiteral("DejaVu Sans"),
                                    QStringLiteral("sans-serif")});
        return Typeface{family};
    }();
    return face;
}

const Typeface& Typeface::display() {
    static const Typeface face = [] {
        const QString family = QStringLiteral("Inter Display");
        if (QFontDatabase::hasFamily(family)) return Typeface{family};
        return Typeface{text().family, kStandInTracking};
    }();
    return face;
}

} // namespace vantle
