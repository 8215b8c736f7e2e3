#include "SampleLog.h"

#include "tracking/JsonForm.h"

#include <array>

namespace vantle::bench {

namespace {

/// SplitMix64: the same numbers on every machine.
std::uint64_t scrambled(std::uint64_t n) {
    n += 0x9E3779B97F4A7C15u;
    n = (n ^ (n >> 30)) * 0xBF58476D1CE4E5B9u;
    n = (n ^ (n >> 27)) * 0x94D049BB133111EBu;
    return n ^ (n >> 31);
}

const QString& pick(const std::array<QString, 6>& texts, std::uint64_t random) {
    return texts[random % texts.size()];
}

} // namespace

Session sampleSession(int i) {
    static const std::array<QString, 6> skills = {
        QStringLiteral("building"),       QStringLiteral("building"),
        QStringLiteral("product_design"), QStringLiteral("marketing"),
        QStringLiteral("founder_ops"),    QStringLiteral("deep_work")};
    static const std::array<QString, 6> notes = {QString(),
                                                 QString(),
                                                 QString(),
                                                 QStringLiteral("review"),
                                                 QStringLiteral("café, planning"),
                                                 QStringLiteral("fixed the import")};
    const std::uint64_t random = scrambled(static_cast<std::uint64_t>(i));
    const std::uint64_t other = scrambled(random);
    const auto active = static_cast<std::int64_t>(60 + random % 7200);
    // One begins every two and a half hours, since 1990 for a million of them.
    const Date start = dateFromEpoch(631152000.0 + 9000.0 * i);
    return {QUuid(uint(random), ushort(random >> 32), ushort(0x4000 | (random >> 52)),
                  uchar(0x80 | (other & 0x3F)), uchar(other >> 8), uchar(other >> 16),
                  uchar(other >> 24), uchar(other >> 32), uchar(other >> 40), uchar(other >> 48),
                  uchar(other >> 56)),
            // People stay with a skill for some sessions in a row.
            pick(skills, scrambled(static_cast<std::uint64_t>(i / 3))), start,
            start + Seconds(static_cast<double>(active + static_cast<std::int64_t>(other % 600))),
            active, pick(notes, random >> 8), other % 20 == 0 ? sourceManual() : sourceApp()};
}

QByteArray sampleLog(int count) {
    QByteArray text;
    text.reserve(qsizetype{190} * count);
    for (int i = 0; i < count; ++i)
        text.append(json::encode(sampleSession(i)).value()).append('\n');
    return text;
}

} // namespace vantle::bench
