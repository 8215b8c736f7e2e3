#include "surfaces/kit/text/Typeface.h"

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

QFont fontOf(const look::TypeStep& step) {
    const Typeface& face = step.display ? Typeface::display() : Typeface::text();
    QFont font(face.family);
    font.setPixelSize(step.size);
    font.setWeight(step.weight);
    font.setLetterSpacing(QFont::AbsoluteSpacing, step.size * (step.tracking + face.tracking));
    if (step.capitals) font.setCapitalization(QFont::AllUppercase);
    font.setHintingPreference(QFont::PreferVerticalHinting);
    return font;
}

} // namespace vantle
