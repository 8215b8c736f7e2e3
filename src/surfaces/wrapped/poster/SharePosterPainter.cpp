#include "surfaces/wrapped/poster/SharePosterPainter.h"

#include "surfaces/kit/tokens/Look.h"
#include "surfaces/wrapped/poster/PosterDots.h"
#include "surfaces/wrapped/poster/PosterLayout.h"
#include "surfaces/wrapped/poster/PosterRhythm.h"
#include "surfaces/wrapped/poster/PosterText.h"

#include <QLinearGradient>
#include <QPainter>
#include <QSvgRenderer>

#include <algorithm>

namespace vantle::shareposter {

namespace {

using look::kType;
using Layout = PosterLayout;

constexpr double kDotsHeight = 150;
constexpr double kHoursUnitGap = 8;
constexpr double kNameRoom = 88; // of the breakdown
constexpr double kLeastBar = 72;
constexpr double kHoursRoom = 68;
constexpr double kBesideBar = 12;
constexpr double kRowLine = 4; // from a row's centre to its baseline
constexpr double kFigureGap = 18;
constexpr double kSmallInk = 0.5; // left bearing of small text at the margin

/// Returns the x at which large text aligns optically with small text.
double optical(const QString& text, const QFont& font) {
    return Layout::kMargin + kSmallInk - postertext::inkLeft(text, font);
}

void drawHeader(QPainter& painter, const SharePoster& poster) {
    QSvgRenderer icon(QStringLiteral(":/vantle/kit/app-icon.svg"));
    icon.render(&painter, {Layout::kMargin, Layout::kMargin, Layout::kIcon, Layout::kIcon});
    postertext::draw(painter, {Layout::kBesideIcon, Layout::kWordmarkLine}, poster.wordmark,
                     postertext::font(kType.cardTitle), look::kDark.textPrimary.color());
    postertext::draw(painter, {Layout::kBesideIcon, Layout::kTitleLine}, poster.title,
                     postertext::font(kType.kickerPoster), look::kDark.textSecondary.color());
}

void drawName(QPainter& painter, const SharePoster& poster, double line) {
    const QFont font =
        postertext::fitted(postertext::font(kType.namePoster), poster.personaName, Layout::kColumn);
    const QString name = postertext::elided(poster.personaName, font, Layout::kColumn);
    QLinearGradient gradient(0, 0, postertext::width(name, font), 0); // from the text's start
    gradient.setColorAt(0, poster.startColor);
    gradient.setColorAt(1, poster.endColor);
    postertext::draw(painter, {optical(name, font), line}, name, font, gradient);
}

void drawHours(QPainter& painter, const ReviewFigure& hours, double line) {
    const QFont unitFont = postertext::font(kType.heroUnitPoster);
    const double unitRoom =
        hours.unit.isEmpty() ? 0 : kHoursUnitGap + postertext::width(hours.unit, unitFont);
    const QFont font = postertext::fitted(postertext::font(kType.heroPoster), hours.value,
                                          Layout::kColumn - unitRoom);
    const double left = optical(hours.value, font);
    postertext::draw(painter, {left, line}, hours.value, font, look::kDark.textPrimary.color());
    const double end = left + postertext::width(hours.value, font);
    postertext::draw(painter, {end + kHoursUnitGap, line}, hours.unit, unitFont,
                     look::kDark.textTertiary.color());
}

void drawClosing(QPainter& painter, const Layout& at) {
    const QFont font = postertext::font(kType.lead);
    for (qsizetype i = 0; i < at.closing.size(); ++i)
        postertext::draw(painter,
                         {Layout::kMargin, at.closingLine + Layout::kClosingLeading * double(i)},
                         at.closing[i], font, look::kDark.textSecondary.color());
}

/// The breakdown's columns: hours and names take what they need; the bar gets the rest, at least
/// kLeastBar.
struct Columns {
    explicit Columns(const std::vector<SkillLine>& skills) {
        double widestName = 0;
        double widestHours = 0;
        for (const SkillLine& skill : skills) {
            widestName = std::max(widestName, postertext::width(skill.name, nameFont));
            widestHours = std::max(widestHours, postertext::width(skill.hours, hoursFont));
        }
        const double right = Layout::kRight - std::max(widestHours + kBesideBar, kHoursRoom);
        const double most = right - kLeastBar - kBesideBar - Layout::kMargin;
        nameRoom = std::clamp(widestName, kNameRoom, most);
        const double left = Layout::kMargin + nameRoom + kBesideBar;
        bar = QRectF(left, 0, right - left, Layout::kBarHeight);
    }

    const QFont nameFont = postertext::font(kType.bodyMedium);
    const QFont hoursFont = postertext::font(kType.bodyMedium);
    double nameRoom = 0;
    QRectF bar; ///< full length, at the poster's top
};

void drawBar(QPainter& painter, QRectF bar, const SkillLine& skill) {
    const double radius = bar.height() / 2;
    painter.setPen(Qt::NoPen);
    painter.setBrush(look::kDark.barTrough.color());
    painter.drawRoundedRect(bar, radius, radius);
    // At least a whole dot.
    bar.setWidth(std::max(bar.width() * skill.fraction, bar.height()));
    painter.setBrush(skill.color);
    painter.drawRoundedRect(bar, radius, radius);
}

void drawBreakdown(QPainter& painter, const SharePoster& poster, const Layout& at) {
    if (poster.breakdown.empty()) return;
    postertext::draw(painter, {Layout::kMargin, at.breakdownKickerLine}, poster.breakdownKicker,
                     postertext::font(kType.kicker), look::kDark.textTertiary.color());
    const Columns columns(poster.breakdown);
    for (std::size_t i = 0; i < poster.breakdown.size(); ++i) {
        const SkillLine& skill = poster.breakdown[i];
        const double middle = at.row(i);
        const double line = middle + kRowLine;
        postertext::draw(painter, {Layout::kMargin, line},
                         postertext::elided(skill.name, columns.nameFont, columns.nameRoom),
                         columns.nameFont, look::kDark.textPrimary.color());
        drawBar(painter, columns.bar.translated(0, middle - Layout::kBarHeight / 2), skill);
        postertext::drawBefore(painter, {Layout::kRight, line}, skill.hours, columns.hoursFont,
                               look::kDark.textSecondary.color());
    }
}

void drawFigures(QPainter& painter, const SharePoster& poster, const Layout& at) {
    painter.fillRect(QRectF(Layout::kMargin, at.divider, Layout::kColumn, 1),
                     look::kDark.hairline.color());
    const QFont titleFont = postertext::font(kType.kickerPoster);
    const QString space(QLatin1Char(' '));
    const double pitch = Layout::kColumn / double(std::max<std::size_t>(poster.figures.size(), 1));
    QFont font = postertext::font(kType.titleL); // one size for all, in which the longest fits
    for (const auto& [figure, title] : poster.figures)
        font = postertext::fitted(font, figure.value + space + figure.unit, pitch - kFigureGap);
    double x = Layout::kMargin;
    for (const auto& [figure, title] : poster.figures) {
        postertext::draw(painter, {x, at.figureLine}, figure.value, font,
                         look::kDark.textPrimary.color());
        const double unit = x + postertext::width(figure.value + space, font);
        postertext::draw(painter, {unit, at.figureLine}, figure.unit, font,
                         look::kDark.textTertiary.color());
        postertext::draw(painter, {x, at.figureTitleLine}, title, titleFont,
                         look::kDark.textTertiary.color());
        x += pitch;
    }
}

} // namespace

QSizeF size(const SharePoster& poster) { return Layout::of(poster).size(); }

void draw(QPainter& painter, const SharePoster& poster, double scale) {
    const Layout at = Layout::of(poster);
    painter.save();
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.fillRect(QRectF({}, at.size()), look::kDark.windowGround.color());
    posterdots::draw(painter, {0, 0, Layout::kWidth, kDotsHeight}, poster.dotColors, scale);
    drawHeader(painter, poster);
    if (poster.personaName.isEmpty())
        drawHours(painter, poster.hours, at.heroLine);
    else
        drawName(painter, poster, at.heroLine);
    drawClosing(painter, at);
    postertext::draw(painter, {Layout::kMargin, at.rhythmKickerLine}, poster.rhythmKicker,
                     postertext::font(kType.kicker), look::kDark.textTertiary.color());
    posterrhythm::draw(painter, {Layout::kMargin, at.rhythmTop}, poster.rhythm);
    drawBreakdown(painter, poster, at);
    drawFigures(painter, poster, at);
    postertext::draw(painter, {Layout::kMargin, at.footerLine}, poster.footer,
                     postertext::font(kType.small), look::kDark.textTertiary.color());
    painter.restore();
}

} // namespace vantle::shareposter
