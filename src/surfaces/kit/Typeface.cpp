#include "surfaces/kit/Typeface.h"

#include <QFont>
#include <QFontDatabase>
#include <QStringList>

namespace vantle {
namespace {

constexpr double kStandInTracking = -0.004;

} // namespace

Typeface::Typeface(QObject* parent)
    : QObject(parent)
    , m_text(QStringLiteral("Inter"))
    , m_display(QStringLiteral("Inter Display")) {
    QFont::insertSubstitutions(m_text, {QStringLiteral("Noto Sans"), QStringLiteral("DejaVu Sans"),
                                        QStringLiteral("sans-serif")});
    if (!QFontDatabase::hasFamily(m_display)) {
        m_display = m_text;
        m_displayTracking = kStandInTracking;
    }
}

} // namespace vantle
