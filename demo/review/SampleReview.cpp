#include "review/SampleReview.h"

#include "windows/SampleYear.h"

#include <array>

namespace vantle {

namespace {

struct Work {
    const char* start;
    int minutes;
    const char* skill;
    const char* note = "";
    bool isManual = false;
};

constexpr std::array kLastWeek = {
    Work{"2025-11-10T22:40:00Z", 118, "building", "Retries keep their order"},
    Work{"2025-11-11T21:50:00Z", 96, "building", "Import reads old exports"},
    Work{"2025-11-11T23:40:00Z", 84, "product_design", "Settings in one column"},
    Work{"2025-11-12T22:35:00Z", 92, "marketing", "Landing page, first draft"},
    Work{"2025-11-13T09:10:00Z", 60, "connections", "Call with Ines about the pilot"},
    Work{"2025-11-13T23:05:00Z", 77, "building"},
    Work{"2025-11-14T15:20:00Z", 138, "founder_ops", "Invoices and the tax letter", true},
    Work{"2025-11-14T22:55:00Z", 186, "building", "The queue survives a restart"},
    Work{"2025-11-15T22:30:00Z", 164, "product_design", "Drawn the icons anew"},
    Work{"2025-11-16T10:40:00Z", 36, "distribution"},
    Work{"2025-11-16T18:00:00Z", 64, "marketing", "Wrote to the list"},
    Work{"2025-11-16T23:20:00Z", 54, "building"},
};

constexpr std::array kThisWeek = {
    Work{"2025-11-17T21:05:00Z", 64, "distribution", "Packaging for three desktops"},
    Work{"2025-11-17T23:00:00Z", 130, "building", "Webhook signatures are checked"},
    Work{"2025-11-18T13:30:00Z", 96, "product_design", "Landing page has a darker ground"},
    Work{"2025-11-19T16:51:00Z", 98, "building", "Log reader skips damaged lines and keeps them"},
    Work{"2025-11-19T22:15:00Z", 25, "founder_ops", "Invoices for October"},
    Work{"2025-11-20T11:02:00Z", 47, "marketing", "Drafted the landing page", true},
    Work{"2025-11-20T18:26:00Z", 85, "product_design",
         "Settings page: one column, captions under each row."},
    Work{"2025-11-21T09:40:00Z", 14, "connections",
         "Call with Ines about the pilot, she wants the weekly export first."},
    Work{"2025-11-21T14:05:00Z", 72, "building",
         "Webhook retries land in order now; the queue survives a restart."},
};

class Log {
public:
    void add(Date start, int minutes, const char* skill) {
        Session made;
        made.id = QUuid::fromString(QStringLiteral("5A3B1D1E-4A52-4C1B-9A1E-%1")
                                        .arg(sessions.size() + 1, 12, 10, QLatin1Char('0')));
        made.skillId = QLatin1String(skill);
        made.startedAt = start;
        made.endedAt = start + Seconds(60.0 * minutes);
        made.activeSeconds = 60 * minutes;
        made.source = sourceApp();
        sessions.push_back(made);
    }
    void add(const Work& work) {
        add(sampleMoment(work.start), work.minutes, work.skill);
        sessions.back().note = QString::fromUtf8(work.note);
        if (work.isManual) sessions.back().source = sourceManual();
    }

    std::vector<Session> sessions;
};

/// What a season is about, and now and then something else.
const char* skillOf(int day, int part) {
    constexpr std::array kSeasons = {"building",  "product_design", "building",
                                     "marketing", "building",       "founder_ops"};
    constexpr std::array kOthers = {"marketing", "connections", "distribution", "product_design"};
    if ((day * 7 + part) % 11 < 3) return kOthers[static_cast<std::size_t>(day % 4)];
    return kSeasons[static_cast<std::size_t>(day / 45 % 6)];
}

} // namespace

std::vector<Session> nightOwlYears() {
    Log log;
    const Date first = sampleMoment("2024-03-04T22:10:00Z");
    for (int day = 0; day < 616; ++day) {
        if (day * 13 % 7 == 2 || day * 31 % 17 > 13) continue;
        const Date evening = first + Seconds(86400.0 * day + 600.0 * (day * 7 % 9));
        log.add(evening, 25 + day * 37 % 110, skillOf(day, 0));
        if (day % 3 == 0) log.add(evening + Seconds(-36000), 20 + day * 11 % 60, skillOf(day, 1));
    }
    for (const Work& work : kLastWeek)
        log.add(work);
    for (const Work& work : kThisWeek)
        log.add(work);
    return log.sessions;
}

std::vector<Session> firstWeeks() {
    Log log;
    const Date first = sampleMoment("2025-11-01T09:00:00Z");
    for (int day = 0; day < 9; ++day)
        log.add(first + Seconds(86400.0 * day), 50 + day * 17 % 60, skillOf(day * 2, 1));
    for (const Work& work : kLastWeek)
        log.add(work);
    for (const Work& work : kThisWeek)
        log.add(work);
    return log.sessions;
}

std::vector<Session> oneSkill() {
    Log log;
    for (int day = 0; day < 4; ++day)
        log.add(sampleMoment("2025-11-17T09:00:00Z") + Seconds(86400.0 * day), 70 + 20 * day,
                "product_design");
    return log.sessions;
}

std::vector<Session> workingLife() {
    Log log;
    const Date first = sampleMoment("2015-01-05T09:00:00Z");
    for (int day = 0; day < 3900; ++day)
        if (day % 7 < 5)
            log.add(first + Seconds(86400.0 * day), 200 + day * 37 % 90, skillOf(day, day % 3));
    return log.sessions;
}

std::vector<Session> firstDay() {
    Log log;
    log.add(sampleMoment("2025-11-21T09:05:00Z"), 40, "building");
    log.add(sampleMoment("2025-11-21T11:00:00Z"), 55, "building");
    log.add(sampleMoment("2025-11-21T13:40:00Z"), 75, "product_design");
    return log.sessions;
}

} // namespace vantle
