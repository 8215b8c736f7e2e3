#include "windows/SampleYear.h"

#include "base/Iso8601.h"
#include "tracking/JsonForm.h"

#include <QLocale>

#include <array>
#include <vector>

namespace vantle {

namespace {

struct Noted {
    const char* start;
    int minutes;
    const char* skill;
    const char* note;
    bool isManual = false;
};

constexpr std::array kNoted = {
    Noted{"2025-11-21T14:05:00Z", 72, "building",
          "Webhook retries land in order now; the queue survives a restart."},
    Noted{"2025-11-21T09:40:00Z", 14, "connections",
          "Call with Ines about the pilot, she wants the weekly export first."},
    Noted{"2025-11-20T18:26:00Z", 125, "product_design",
          "Settings page: one column, captions under each row."},
    Noted{"2025-11-20T11:02:00Z", 47, "marketing", "Drafted the landing page", true},
    Noted{"2025-11-19T16:51:00Z", 98, "building", "Log reader skips damaged lines and keeps them"},
    Noted{"2025-11-19T10:15:00Z", 25, "founder_ops", "Invoices for October"},
    Noted{"2025-11-18T13:30:00Z", 110, "building", "Import of the old export format"},
    Noted{"2025-11-17T09:05:00Z", 64, "distribution", "Packaging for three desktops"},
};

Session session(int number, Date start, int minutes, const char* skill) {
    Session made;
    made.id = QUuid::fromString(
        QStringLiteral("5A3B1D1E-4A52-4C1B-9A1E-%1").arg(number, 12, 10, QLatin1Char('0')));
    made.skillId = QLatin1String(skill);
    made.startedAt = start;
    made.endedAt = start + Seconds(60.0 * minutes);
    made.activeSeconds = 60 * minutes;
    made.source = sourceApp();
    return made;
}

} // namespace

Date sampleMoment(const char* text) { return iso8601::parse(text).value_or(dateFromEpoch(0)); }

QString sampleLocale() {
    const QLocale locale;
    return locale.language() == QLocale::C ? QStringLiteral("en_US") : locale.name();
}

Date sampleNow() { return sampleMoment("2025-11-21T15:30:00Z"); }

QByteArray sampleLog(int days) {
    constexpr std::array skills = {"building",    "building",    "product_design", "building",
                                   "founder_ops", "marketing",   "product_design", "building",
                                   "connections", "distribution"};
    QByteArray lines;
    const auto write = [&](const Session& made) {
        if (const auto line = json::encode(made)) lines += line.value() + '\n';
    };
    // Two sessions a workday before the ones with notes, of 30 to 75 minutes.
    int number = 0;
    for (int day = days; day > 4; --day)
        for (int half = 0; half < 2; ++half) {
            ++number;
            const Date start = sampleMoment("2025-11-21T09:00:00Z") - Seconds(86400.0 * day) +
                               Seconds(18000.0 * half);
            write(session(number, start, 30 + number * 17 % 46,
                          skills[static_cast<std::size_t>(number * 7 % 10)]));
        }
    for (auto noted = kNoted.rbegin(); noted != kNoted.rend(); ++noted) {
        Session made = session(++number, sampleMoment(noted->start), noted->minutes, noted->skill);
        made.note = QString::fromUtf8(noted->note);
        if (noted->isManual) made.source = sourceManual();
        write(made);
    }
    return lines;
}

} // namespace vantle
