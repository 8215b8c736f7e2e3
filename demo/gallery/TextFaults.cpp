#include "gallery/TextFaults.h"

#include <QAccessible>
#include <QFont>
#include <QFontMetricsF>
#include <QQuickItem>

#include <algorithm>
#include <utility>

namespace vantle {

namespace {

constexpr double kTouch = 2;  // px; lines stand as close as their glyphs let them
constexpr double kMargin = 8; // px that a text keeps from the edge of a card

/// What the parts of a window are told by its parts further out.
struct Surroundings {
    QRectF clip;                       ///< what of the window is left
    QRectF room;                       ///< of the control or the card; all of it without one
    const QQuickItem* layer = nullptr; ///< the menu or popover, which covers what is below it
    bool scrolls = false;              ///< something scrolls, which shows the rest
};

struct ShownText {
    QString words; ///< empty for a bar or an icon
    QRectF frame;  ///< of its glyphs, in the window
    Surroundings in;
    bool isElided = false;

    [[nodiscard]] QRectF seen() const { return frame & in.clip; }
};

/// Whether the item is of that type of the kit, or of one that is built on it.
bool isOf(const QQuickItem& item, QByteArrayView type) {
    for (const QMetaObject* meta = item.metaObject(); meta; meta = meta->superClass())
        if (QByteArrayView(meta->className()).startsWith(type)) return true;
    return false;
}

QRectF wholeOf(const QQuickItem& item) { return {0, 0, item.width(), item.height()}; }

QString textOf(const QQuickItem& item) {
    const bool isText = item.inherits("QQuickText") || item.inherits("vantle::TabularLine");
    return isText ? item.property("text").toString() : QString();
}

/// Where the ink is: a text item may be wider than its glyphs, and a line is higher than they are.
QRectF inkOf(const QQuickItem& item) {
    QRectF frame = wholeOf(item);
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
    if (item.property("lineCount").toInt() == 1) {
        const QFontMetricsF metrics(item.property("font").value<QFont>());
        const QRectF ink = metrics.tightBoundingRect(textOf(item));
        frame.setTop(item.baselineOffset() + ink.top());
        frame.setBottom(item.baselineOffset() + ink.bottom());
    }
    return frame;
}

Surroundings within(const QQuickItem& item, Surroundings in) {
    const QRectF frame = item.mapRectToScene(wholeOf(item));
    const QRectF ground = item.property("groundRect").toRectF();
    if (item.clip()) in.clip &= frame;
    if (item.inherits("QQuickFlickable")) in.scrolls = true;
    if (isOf(item, "vantle::KitControl")) in.room = frame;
    if (!ground.isEmpty()) in.room = item.mapRectToScene(ground).adjusted(kMargin, 0, -kMargin, 0);
    if (isOf(item, "DarkMenuPanel") || isOf(item, "DarkPopover")) {
        in.layer = &item;
        in.room = frame.adjusted(kMargin, 0, -kMargin, 0);
    }
    return in;
}

void collect(const QQuickItem& item, Surroundings in, QList<ShownText>& shown) {
    if (!item.isVisible() || item.opacity() == 0) return;
    const QString words = textOf(item);
    const bool isThing = isOf(item, "vantle::KitIcon") || isOf(item, "GlassBarTrack");
    if (!words.isEmpty() || isThing) {
        const QRectF frame = item.mapRectToScene(isThing ? wholeOf(item) : inkOf(item));
        const ShownText one{words, frame, in, item.property("truncated").toBool()};
        if (!one.seen().isEmpty()) shown.append(one);
    }
    in = within(item, in);
    for (const QQuickItem* child : item.childItems())
        collect(*child, in, shown);
}

/// What a screen reader is told of the window.
void collectSpoken(QAccessibleInterface* one, QStringList& spoken) {
    if (one == nullptr || one->state().invisible) return;
    spoken << one->text(QAccessible::Name) << one->text(QAccessible::Description);
    for (int i = 0; i < one->childCount(); ++i)
        collectSpoken(one->child(i), spoken);
}

/// What is left of the text without what is not the program's.
QString programText(QString words, const SampleData& data) {
    // Marks of a text that is set in two colours.
    static const QRegularExpression mark(QStringLiteral("</?font[^>]*>"));
    words.remove(mark);
    if (!data.own.pattern().isEmpty()) words.remove(data.own);
    return words;
}

bool mayBeCut(const QString& words, const SampleData& data) {
    const auto isLetter = [](QChar character) { return character.isLetter(); };
    if (std::ranges::none_of(programText(words, data), isLetter)) return true;
    return std::ranges::any_of(data.longNames,
                               [&](const QString& name) { return words.contains(name); });
}

bool isCut(const ShownText& text) {
    if (text.isElided) return true;
    const QSizeF lost = text.frame.size() - text.seen().size();
    return (lost.width() > kTouch || lost.height() > 2 * kTouch) && !text.in.scrolls;
}

bool leaves(const ShownText& text) {
    const QRectF seen = text.seen();
    return seen.left() < text.in.room.left() - kTouch ||
           seen.right() > text.in.room.right() + kTouch;
}

bool overlap(const ShownText& one, const ShownText& other) {
    if (one.words.isEmpty() && other.words.isEmpty()) return false;
    if (one.in.layer != other.in.layer) return false;
    const QRectF common = one.seen() & other.seen();
    return common.width() > kTouch && common.height() > 2 * kTouch;
}

QList<ShownText> shownIn(const QQuickWindow& window) {
    const QRectF whole(QPointF(), window.size());
    QList<ShownText> shown;
    collect(*window.contentItem(), {whole, whole, nullptr, false}, shown);
    return shown;
}

} // namespace

QStringList textsOf(QQuickWindow& window) {
    QStringList texts;
    for (const ShownText& text : shownIn(window))
        texts << text.words;
    collectSpoken(QAccessible::queryAccessibleInterface(&window), texts);
    texts.removeDuplicates();
    texts.removeAll(QString());
    return texts;
}

QStringList untranslatedTexts(QQuickWindow& window, const SampleData& data) {
    static const QRegularExpression plain(QStringLiteral("[A-Za-z]{2}"));
    QStringList texts = textsOf(window);
    texts.removeIf([&](const QString& text) { return !programText(text, data).contains(plain); });
    return texts;
}

QStringList crampedTexts(const QQuickWindow& window, const SampleData& data) {
    const QList<ShownText> shown = shownIn(window);
    QStringList faults;
    for (const ShownText& text : shown) {
        if (text.words.isEmpty()) continue;
        if (isCut(text) && !mayBeCut(text.words, data))
            faults << QStringLiteral("cut: ") + text.words;
        else if (leaves(text))
            faults << QStringLiteral("leaving: ") + text.words;
    }
    for (qsizetype i = 0; i < shown.size(); ++i)
        for (qsizetype k = i + 1; k < shown.size(); ++k)
            if (overlap(shown[i], shown[k]))
                faults
                    << QStringLiteral("overlapping: %1 / %2").arg(shown[i].words, shown[k].words);
    return faults;
}

} // namespace vantle
