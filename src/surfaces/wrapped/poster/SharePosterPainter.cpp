#include "surfaces/wrapped/poster/SharePosterPainter.h"

#include "surfaces/wrapped/poster/PosterDots.h"
#include "surfaces/wrapped/poster/PosterLayout.h"
#include "surfaces/wrapped/poster/PosterRhythm.h"
#include "surfaces/wrapped/poster/PosterText.h"

#include <QLinearGradient>
#include <QPainter>
#include <QSvgRenderer>

namespace vantle::shareposter {

namespace {

using namespace posterlook;
using Layout = PosterLayout;

constexpr double kDotsHeight = 150;
constexpr double kHoursUnitGap = 8;
constexpr double kNameRoom = Layout::kBarLeft - Layout::kMargin - 12;
constexpr double kRowLine = 4; // from the middle of a row to its baseline
constexpr double kColumnGap = 10;
constexpr double kSmallInk = 0.5; // where small letters show beside the margin

/// Where large text has to stand for its letters to begin with those of the small texts.
double optical(const QString& text, const QFont& font) {
    return Layout::kMargin + kSmallInk - postertext::inkLeft(text, font);
}

void drawHeader(QPainter& painter, const SharePoster& poster) {
    QSvgRenderer icon(QStringLiteral(":/vantle/poster/app-icon.svg"));
    icon.render(&painter, {Layout::kMargin, Layout::kMargin, Layout::kIcon, Layout::kIcon});
    postertext::draw(painter, {Layout::kBesideIcon, Layout::kWordmarkLine}, poster.wordmark,
                     postertext::font(kWordmark), t1());
    postertext::draw(painter, {Layout::kBesideIcon, Layout::kTitleLine}, poster.title,
                     postertext::font(kSmallKicker), t2());
}

void drawName(QPainter& painter, const SharePoster& poster, double line) {
    const QFont font =
        postertext::fitted(postertext::font(kName), poster.personaName, Layout::kColumn);
    const double width = postertext::width(poster.personaName, font);
    QLinearGradient gradient(0, 0, width, 0); // from where the text stands
    gradient.setColorAt(0, poster.startColor);
    gradient.setColorAt(1, poster.endColor);
    postertext::draw(painter, {optical(poster.personaName, font), line}, poster.personaName, font,
                     gradient);
}

void drawHours(QPainter& painter, const ReviewFigure& hours, double line) {
    const QFont unitFont = postertext::font(kHoursUnit);
    const double unitRoom =
        hours.unit.isEmpty() ? 0 : kHoursUnitGap + postertext::width(hours.unit, unitFont);
    const QFont font =
        postertext::fitted(postertext::font(kHours), hours.value, Layout::kColumn - unitRoom);
    const double left = optical(hours.value, font);
    postertext::draw(painter, {left, line}, hours.value, font, t1());
    const double end = left + postertext::width(hours.value, font);
    postertext::draw(painter, {end + kHoursUnitGap, line}, hours.unit, unitFont, t3());
}

void drawClosing(QPainter& painter, const Layout& at) {
    const QFont font = postertext::font(kClosing);
    for (qsizetype i = 0; i < at.closing.size(); ++i)
        postertext::draw(painter,
                         {Layout::kMargin, at.closingLine + Layout::kClosingLeading * double(i)},
                         at.closing[i], font, t2());
}

void drawBar(QPainter& painter, double middle, const SkillLine& skill) {
    QRectF bar(Layout::kBarLeft, middle - Layout::kBarHeight / 2, Layout::kBarWidth,
               Layout::kBarHeight);
    const double radius = Layout::kBarHeight / 2;
    painter.setPen(Qt::NoPen);
    painter.setBrush(trough());
    painter.drawRoundedRect(bar, radius, radius);
    // Never less than a whole dot.
    bar.setWidth(std::max(Layout::kBarWidth * skill.fraction, Layout::kBarHeight));
    painter.setBrush(skill.color);
    painter.drawRoundedRect(bar, radius, radius);
}

void drawBreakdown(QPainter& painter, const SharePoster& poster, const Layout& at) {
    if (poster.breakdown.empty()) return;
    postertext::draw(painter, {Layout::kMargin, at.breakdownKickerLine}, poster.breakdownKicker,
                     postertext::font(kKicker), t3());
    const QFont name = postertext::font(kSkill);
    const QFont hours = postertext::font(kSkillHours);
    for (std::size_t i = 0; i < poster.breakdown.size(); ++i) {
        const SkillLine& skill = poster.breakdown[i];
        const double line = at.row(i) + kRowLine;
        postertext::draw(painter, {Layout::kMargin, line},
                         postertext::elided(skill.name, name, kNameRoom), name, t1());
        drawBar(painter, at.row(i), skill);
        postertext::drawBefore(painter, {Layout::kRight, line}, skill.hours, hours, t2());
    }
}

void drawFigures(QPainter& painter, const SharePoster& poster, const Layout& at) {
    painter.fillRect(QRectF(Layout::kMargin, at.divider, Layout::kColumn, 1), hairline());
    const QFont titleFont = postertext::font(kSmallKicker);
    const double pitch = Layout::kColumn / double(std::max<std::size_t>(poster.figures.size(), 1));
    for (std::size_t i = 0; i < poster.figures.size(); ++i) {
        const auto& [figure, title] = poster.figures[i];
        const double x = Layout::kMargin + pitch * double(i);
        const QString space(QLatin1Char(' '));
        const QFont font = postertext::fitted(
            postertext::font(kFigure), figure.value + space + figure.unit, pitch - kColumnGap);
        postertext::draw(painter, {x, at.figureLine}, figure.value, font, t1());
        const double unit = x + postertext::width(figure.value + space, font);
        postertext::draw(painter, {unit, at.figureLine}, figure.unit, font, t3());
        postertext::draw(painter, {x, at.figureTitleLine}, title, titleFont, t3());
    }
}

} // namespace

QSizeF size(const SharePoster& poster) { return Layout::of(poster).size(); }

void draw(QPainter& painter, const SharePoster& poster, double scale) {
    const Layout at = Layout::of(poster);
    painter.save();
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.fillRect(QRectF({}, at.size()), ground());
    posterdots::draw(painter, {0, 0, Layout::kWidth, kDotsHeight}, poster.dotColors, scale);
    drawHeader(painter, poster);
    if (poster.personaName.isEmpty())
        drawHours(painter, poster.hours, at.heroLine);
    else
        drawName(painter, poster, at.heroLine);
    drawClosing(painter, at);
    postertext::draw(painter, {Layout::kMargin, at.rhythmKickerLine}, poster.rhythmKicker,
                     postertext::font(kKicker), t3());
    posterrhythm::draw(painter, {Layout::kMargin, at.rhythmTop}, poster.rhythm);
    drawBreakdown(painter, poster, at);
    drawFigures(painter, poster, at);
    postertext::draw(painter, {Layout::kMargin, at.footerLine}, poster.footer,
                     postertext::font(kFooter), t3());
    painter.restore();
}

} // namespace vantle::shareposter
