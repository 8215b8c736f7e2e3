#include "vectors/Runner.h"

#include <QJsonObject>

#include <algorithm>

namespace vantle::vectors {
namespace {

constexpr qsizetype kShownDifferences = 5;

bool mustSkip(const Form& form, const Case& item) {
    return std::ranges::any_of(
        item.needs, [&](const QString& fault) { return !form.injects || !form.injects(fault); });
}

bool anotherReadingHolds(const Form& form, const Case& item, const QJsonValue& got) {
    return std::ranges::any_of(item.alternatives, [&](const QJsonValue& other) {
        return differences(other, got, form.comparison).isEmpty();
    });
}

void report(const QString& verdict, const Form& form, const Case& item,
            const QList<Difference>& found, QTextStream& out) {
    out << verdict << ' ' << form.name << ": " << item.name << '\n';
    if (item.doubtful) out << "  reading  " << item.reading << '\n';
    for (const Difference& difference : found.first(std::min(found.size(), kShownDifferences)))
        out << "  at       " << difference.path << "\n  expected " << jsonText(difference.expected)
            << "\n  got      " << jsonText(difference.got) << '\n';
    if (found.size() > kShownDifferences)
        out << "  and " << found.size() - kShownDifferences << " more\n";
}

} // namespace

QJsonValue unknown(const QString& what) {
    return QJsonObject{{QStringLiteral("unknown to the driver"), what}};
}

Tally runCases(const Form& form, const QList<Case>& cases, QTextStream& out) {
    Tally tally;
    for (const Case& item : cases) {
        ++tally.cases;
        if (mustSkip(form, item)) {
            ++tally.skipped;
            out << "SKIPPED " << form.name << ": " << item.name << "\n  needs    "
                << item.needs.join(QLatin1String(", ")) << '\n';
            continue;
        }
        const QJsonValue got = form.answer(item);
        const QList<Difference> found = differences(item.expect, got, form.comparison);
        if (found.isEmpty()) continue;
        // Where other readings are listed, one of them has to hold.
        const bool open =
            anotherReadingHolds(form, item, got) || (item.doubtful && item.alternatives.isEmpty());
        ++(open ? tally.doubtful : tally.mismatches);
        report(open ? QStringLiteral("DOUBTFUL") : QStringLiteral("MISMATCH"), form, item, found,
               out);
    }
    out << form.name << ": " << tally.cases << " cases, " << tally.mismatches << " mismatches, "
        << tally.doubtful << " doubtful, " << tally.skipped << " skipped\n";
    return tally;
}

Tally runForm(const Form& form, const QString& path, QTextStream& out) {
    const auto cases = loadCases(form.name, path);
    if (!cases) {
        out << cases.error().description() << '\n';
        return {};
    }
    return runCases(form, cases.value(), out);
}

} // namespace vantle::vectors
