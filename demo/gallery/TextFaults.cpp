#include "gallery/TextFaults.h"

#include <QQuickItem>
#include <QRegularExpression>

#include <utility>

namespace vantle {

namespace {

constexpr double kTouch = 2; // px; lines stand as close as their glyphs let them

struct ShownText {
    QString words;
    QRectF frame; ///< of its glyphs, in the window
    QRectF seen;  ///< what clipping leaves of that
    bool isElided;
    bool scrolls; ///< within something that scrolls, which shows the rest
};

bool isText(const QQuickItem& item) {
    return item.inherits("QQuickText") || item.inherits("vantle::TabularLine");
}

/// The rectangle of the glyphs; a text item may be wider.
QRectF glyphs(const QQuickItem& item) {
    QRectF frame(0, 0, item.width(), item.height());
    const QVariant content = item.property("contentWidth");
    if (!content.isValid()) return frame;
    const double left = item.property("leftPadding").toDouble();
    const double room = frame.width() - left - item.property("rightPadding").toDouble();
    const double width = content.toDouble();
    const int alignment = item.property("effectiveHorizontalAlignment").toInt();
    const double shift = alignment == Qt::AlignRight     ? room - width
                         : alignment == Qt::AlignHCenter ? (room - width) / 2
                                                         : 0;
    frame.setX(left + shift);
    frame.setWidth(width);
    return frame;
}

/// `clip` is the visible part of the window for the item.
void collect(const QQuickItem& item, const QRectF& clip, bool scrolls, QList<ShownText>& texts) {
    if (!item.isVisible() || item.opacity() == 0) return;
    const QString words = isText(item) ? item.property("text").toString() : QString();
    if (!words.isEmpty()) {
        const QRectF frame = item.mapRectToScene(glyphs(item));
        const QRectF seen = frame & clip;
        if (!seen.isEmpty())
            texts.append({words, frame, seen, item.property("truncated").toBool(), scrolls});
    }
    QRectF left = clip;
    if (item.clip()) left &= item.mapRectToScene(QRectF(0, 0, item.width(), item.height()));
    const bool isFlickable = item.inherits("QQuickFlickable");
    for (const QQuickItem* child : item.childItems())
        collect(*child, left, scrolls || isFlickable, texts);
}

bool hasPlainWords(const QString& words) {
    static const QRegularExpression plain(QStringLiteral("[A-Za-z]{2}"));
    return words.contains(plain);
}

bool isCut(const ShownText& text) {
    if (text.isElided) return true;
    const double lost = text.frame.width() - text.seen.width();
    return lost > kTouch && !text.scrolls;
}

} // namespace

QStringList textFaults(const QQuickWindow& window) {
    QList<ShownText> texts;
    collect(*window.contentItem(), QRectF(QPointF(), window.size()), false, texts);
    QStringList faults;
    for (const ShownText& text : std::as_const(texts)) {
        if (hasPlainWords(text.words)) faults << QStringLiteral("untranslated: ") + text.words;
        if (isCut(text)) faults << QStringLiteral("cut: ") + text.words;
    }
    for (qsizetype i = 0; i < texts.size(); ++i)
        for (qsizetype k = i + 1; k < texts.size(); ++k) {
            const QRectF common = texts[i].seen & texts[k].seen;
            if (common.width() > kTouch && common.height() > 2 * kTouch)
                faults
                    << QStringLiteral("overlapping: %1 / %2").arg(texts[i].words, texts[k].words);
        }
    return faults;
}

} // namespace vantle
