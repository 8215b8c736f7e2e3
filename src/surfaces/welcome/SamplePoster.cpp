#include "surfaces/welcome/SamplePoster.h"

#include "surfaces/welcome/SampleSkills.h"

#include <array>

namespace vantle {

namespace {

using samples::seed;
using samples::words;

struct Hours {
    const char* skill;
    const char* hours;
    const char* share;
    double fraction; ///< of the first
};

constexpr std::array kBreakdown = {Hours{"building", "8.2 h", "45%", 1.0},
                                   Hours{"product_design", "4.1 h", "22%", 0.5},
                                   Hours{"marketing", "2.6 h", "14%", 0.32}};

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

/// As the hours of a busy person follow each other.
QList<QColor> dots() {
    QList<QColor> colors;
    for (const char* id :
         {"founder_ops", "building", "building", "product_design", "building", "marketing",
          "product_design", "building", "connections", "building", "product_design"})
        colors << QColor::fromRgb(seed(id).hexRGB);
    return colors;
}

} // namespace

SharePoster samplePoster() {
    SharePoster poster;
    poster.wordmark = words("Vantle");
    poster.title = words("YOUR WEEK, IN FULL");
    poster.dotColors = dots();
    poster.personaName = words("Night Owl");
    poster.startColor = QColor::fromRgb(0x7A78FF);
    poster.endColor = QColor::fromRgb(0xBF5AF2);
    poster.hours = {words("18.4"), words("h")};
    poster.closing = words("18.4 h across 12 sessions, led by Build.");
    poster.rhythmKicker = words("YOUR RHYTHM");
    poster.rhythm = week();
    poster.breakdownKicker = words("THE BREAKDOWN");
    for (const Hours& line : kBreakdown) {
        const Skill skill = seed(line.skill);
        poster.breakdown.push_back({skill.name, QColor::fromRgb(skill.hexRGB), words(line.hours),
                                    words(line.share), line.fraction});
    }
    poster.figures = {{poster.hours, words("TOTAL")},
                      {{words("12"), {}}, words("SESSIONS")},
                      {{words("6"), {}}, words("ACTIVE DAYS")}};
    poster.footer = words("Vantle · the work is adding up");
    return poster;
}

} // namespace vantle
