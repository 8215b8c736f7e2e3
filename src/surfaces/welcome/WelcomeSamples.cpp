#include "surfaces/welcome/WelcomeSamples.h"

#include "base/Words.h"
#include "platform/Preferences.h"
#include "platform/ReducedMotion.h"
#include "surfaces/capsule/CapsuleText.h"
#include "surfaces/dashboard/DashboardFigures.h"
#include "surfaces/kit/tokens/Look.h"
#include "tracking/DashFormat.h"
#include "tracking/Skill.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace vantle {

namespace {

/// Converts a sample text.
QString words(const char* utf8) { return QString::fromUtf8(utf8); }

QString inHours(double hours) { return dashformat::inlineHours(hours, DurationStyle::Natural); }
QString inMinutes(std::int64_t minutes) {
    return dashformat::sessionDuration(minutes * 60, DurationStyle::Natural);
}

/// Returns the seed with that id, or the first one.
Skill seed(const char* id) {
    return Skill::seedDefinition(QLatin1String(id)).value_or(Skill::defaults().front());
}

QColor colorOf(const char* id) { return QColor::fromRgb(seed(id).hexRGB); }

SampleApp app(const char* name, const char* skill) {
    return {words(name), seed(skill).name, colorOf(skill)};
}

StatBlock stat(const QString& title, double hours, const QString& context, double fraction,
               std::uint32_t accent) {
    StatBlock made;
    const dashformat::StatValue figure = dashformat::statValue(hours, DurationStyle::Natural);
    made.title = title;
    made.value = figure.value;
    made.unit = figure.unit;
    made.context = context;
    made.fraction = fraction;
    made.accent = QColor::fromRgb(accent);
    return made;
}

SkillTotalLine total(const char* skill, double fraction, double hours, const char* share) {
    return {seed(skill).name, colorOf(skill), fraction, inHours(hours), words(share)};
}

RecentLine line(const QString& date, const char* skill, int minutes) {
    return {date, colorOf(skill), seed(skill).name, inMinutes(minutes), false};
}

/// One letter per hour: the first of the mode's name.
constexpr const char* kWall = "BFBBBBDDFMMCCCCCDDDDBBBBSSBMMBDBDSSSSSBBBSDDBD";

const char* idOf(char letter) {
    switch (letter) {
    case 'D':
        return "product_design";
    case 'M':
        return "marketing";
    case 'S':
        return "distribution";
    case 'F':
        return "founder_ops";
    case 'C':
        return "connections";
    default:
        return "building";
    }
}

/// The screen of the sample capsule, without a housing.
ScreenShape sampleScreen() {
    return {.frame = QRectF(0, 0, 1440, 900), .available = QRectF(0, 28, 1440, 872)};
}

constexpr int kHoveredChip = 3;

struct Hours {
    const char* skill;
    double hours;
    const char* share;
    double fraction; ///< of the first
};

constexpr std::array kBreakdown = {Hours{"building", 8.2, "45%", 1.0},
                                   Hours{"product_design", 4.1, "22%", 0.5},
                                   Hours{"marketing", 2.6, "14%", 0.32}};

struct Day {
    const char* skill; ///< null for a day off
    float opacity;
};

constexpr std::array kWeek = {Day{"building", 1.0F},      Day{"product_design", 0.75F},
                              Day{"building", 1.0F},      Day{"connections", 0.5F},
                              Day{"marketing", 1.0F},     Day{nullptr, 0.0F},
                              Day{"product_design", 1.0F}};

DayTile tile(const Day& day) {
    DayTile made;
    made.isDay = true;
    made.hasFill = day.skill != nullptr;
    if (!made.hasFill) return made;
    made.fill = QColor::fromRgb(seed(day.skill).hexRGB);
    made.fill.setAlphaF(day.opacity);
    return made;
}

RhythmPicture week() {
    RhythmPicture picture;
    for (const char* letter : {"M", "T", "W", "T", "F", "S", "S"})
        picture.letters << words(letter);
    RhythmPicture::Week tiles;
    for (std::size_t i = 0; i < tiles.size(); ++i)
        tiles[i] = tile(kWeek[i]);
    picture.weeks = {tiles};
    return picture;
}

/// A plausible sequence of hours.
QList<QColor> dots() {
    QList<QColor> colors;
    for (const char* id :
         {"founder_ops", "building", "building", "product_design", "building", "marketing",
          "product_design", "building", "connections", "building", "product_design"})
        colors << QColor::fromRgb(seed(id).hexRGB);
    return colors;
}

} // namespace

WelcomeSamples::WelcomeSamples(const Environment& environment) : m_env(environment) {}
WelcomeSamples::~WelcomeSamples() = default;

void WelcomeSamples::showModes(const std::vector<Skill>& skills) {
    if (skills == m_skills) return;
    m_skills = skills;
    if (!m_capsule) return;
    m_capsule.release()->deleteLater(); // its view drops the reference after the signal
    Q_EMIT capsuleChanged();
}

QVariantList WelcomeSamples::apps() {
    QVariantList list;
    for (const SampleApp& one : {app("Terminal", "building"), app("Blender", "product_design"),
                                 app("Thunderbird", "connections"), app("Ledger", "founder_ops")})
        list << QVariant::fromValue(one);
    return list;
}

QVariantList WelcomeSamples::stats() {
    return {
        QVariant::fromValue(stat(Words::tr("Today"), 1.4, Words::tr("of %1 goal").arg(inHours(2)),
                                 0.71, look::kDark.barToday.rgb)),
        QVariant::fromValue(stat(Words::tr("This week"), 9.2, Words::tr("of %1").arg(inHours(14)),
                                 0.66, look::kDark.barWeek.rgb)),
        QVariant::fromValue(stat(Words::tr("All time"), 46.3,
                                 Words::tr("next milestone %1").arg(inHours(50)), 0.926,
                                 look::kDark.barAllTime.rgb))};
}

QList<QColor> WelcomeSamples::wall() {
    QList<QColor> colors;
    for (const char letter : QByteArray(kWall))
        colors << colorOf(idOf(letter));
    return colors;
}

QVariantList WelcomeSamples::totals() {
    return {QVariant::fromValue(total("building", 1.0, 21.4, "46%")),
            QVariant::fromValue(total("product_design", 0.49, 10.5, "23%"))};
}

QVariantList WelcomeSamples::recent() {
    return {QVariant::fromValue(line(Words::tr("Nov 21 · 13:12"), "building", 72)),
            QVariant::fromValue(line(Words::tr("Nov 20 · 18:26"), "product_design", 48))};
}

QVariantList WelcomeSamples::modes() {
    QVariantList list;
    for (const Skill& skill : Skill::defaults())
        list << QVariant::fromValue(SampleApp{{}, skill.name, QColor::fromRgb(skill.hexRGB)});
    return list;
}

NotchCapsule* WelcomeSamples::capsule() {
    if (m_capsule || m_skills.empty()) return m_capsule.get();
    if (!m_capsuleText) m_capsuleText = std::make_unique<CapsuleText>();
    NotchCapsule::Form form;
    form.skill = m_skills.front();
    form.skills = m_skills;
    form.clock = inMinutes(72);
    m_capsule = std::make_unique<NotchCapsule>(
        NotchCapsule::Environment{m_env.scheduler, m_env.preferences, m_env.reducedMotion,
                                  *m_capsuleText},
        std::move(form), sampleScreen());
    return m_capsule.get();
}

int WelcomeSamples::hoveredChip() const {
    return std::min(kHoveredChip, static_cast<int>(m_skills.size()) - 1);
}

SharePoster WelcomeSamples::poster() {
    SharePoster made;
    made.wordmark = words("Vantle");
    made.title = Words::tr("YOUR WEEK, IN FULL");
    made.dotColors = dots();
    made.personaName = Words::tr("Night Owl");
    made.startColor = QColor::fromRgb(0x7A78FF);
    made.endColor = QColor::fromRgb(0xBF5AF2);
    made.hours = {words("18.4"), Words::tr("h")};
    made.closing = Words::tr("%1 across %n sessions, led by %2.", nullptr, 12)
                       .arg(inHours(18.4), seed("building").name);
    made.rhythmKicker = Words::tr("YOUR RHYTHM");
    made.rhythm = week();
    made.breakdownKicker = Words::tr("THE BREAKDOWN");
    for (const Hours& row : kBreakdown) {
        const Skill skill = seed(row.skill);
        made.breakdown.push_back({skill.name, QColor::fromRgb(skill.hexRGB), inHours(row.hours),
                                  words(row.share), row.fraction});
    }
    made.figures = {{made.hours, Words::tr("TOTAL")},
                    {{words("12"), {}}, Words::tr("SESSIONS", nullptr, 12)},
                    {{words("6"), {}}, Words::tr("ACTIVE DAYS", nullptr, 6)}};
    made.footer = Words::tr("Vantle · the work is adding up");
    return made;
}

} // namespace vantle
