// Text functions for views.
#pragma once

#include "base/Bidi.h"
#include "base/KeySigns.h"
#include "base/Text.h"
#include "base/Words.h"
#include "surfaces/kit/text/Breadth.h"

#include <QColor>
#include <QFont>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTextDocumentFragment>
#include <QtQml/qqmlregistration.h>

namespace vantle {

/// One per QML engine. Main thread.
class KitText : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    explicit KitText(QObject* parent = nullptr) : QObject(parent) {}

    /// Returns the number of user-perceived characters.
    Q_INVOKABLE [[nodiscard]] static int count(const QString& text) {
        return static_cast<int>(text::characterCount(text));
    }
    /// Returns the first `limit` user-perceived characters, or all.
    Q_INVOKABLE [[nodiscard]] static QString first(const QString& text, int limit) {
        return text::hasAtMost(text, limit) ? text : text::firstCharacters(text, limit);
    }
    /// Returns a name or a date for a sentence, isolated if it reads from right to left.
    Q_INVOKABLE [[nodiscard]] static QString isolated(const QString& part) {
        return bidi::isolated(part);
    }
    /// Returns the widths of parts that fill `room` side by side, each with a text and `padding`:
    /// equal ones if the widest fits, else what each needs and an equal part of the rest. In px.
    [[nodiscard]] static QList<double> partWidths(const QStringList& texts, const QFont& font,
                                                  double padding, double room);
    /// Returns the left edge of part `index` of these, or their right end for a higher one. In px.
    Q_INVOKABLE [[nodiscard]] static double partLeft(const QStringList& texts, const QFont& font,
                                                     double padding, double room, int index);
    /// Returns the text for screen readers, with keys in words.
    Q_INVOKABLE [[nodiscard]] static QString spoken(const QString& text) {
        return keySignsInWords(text);
    }
    /// "Color 30D158"
    Q_INVOKABLE [[nodiscard]] static QString digits(const QColor& color) {
        return Words::tr("Color %1").arg(color.name(QColor::HexRgb).sliced(1).toUpper());
    }
    /// Returns the description of a selectable colour.
    Q_INVOKABLE [[nodiscard]] static QString swatch(const QColor& color, bool chosen) {
        return (chosen ? Words::tr("%1, selected") : Words::tr("%1, not selected"))
            .arg(digits(color));
    }
    /// balancedBreadth() for views.
    Q_INVOKABLE [[nodiscard]] static double breadth(const QString& text, const QFont& font,
                                                    double width, double firstLineRoom,
                                                    bool designMetrics, int mostLines) {
        return balancedBreadth(text, font, {width, firstLineRoom, designMetrics, mostLines});
    }
    /// Returns styled text without its tags.
    Q_INVOKABLE [[nodiscard]] static QString unstyled(const QString& text) {
        return QTextDocumentFragment::fromHtml(text).toPlainText();
    }
    /// Returns the position of `page` (from 0) among `count` pages.
    Q_INVOKABLE [[nodiscard]] static QString place(int page, int count) {
        return Words::tr("Page %1 of %2").arg(QString::number(page + 1), QString::number(count));
    }
    /// Returns "Step 3 of 9" for step 2.
    Q_INVOKABLE [[nodiscard]] static QString step(int step, int count) {
        return Words::tr("Step %1 of %2").arg(QString::number(step + 1), QString::number(count));
    }
    /// Returns the announcement for a page: its position if there are several, and its texts unless
    /// empty.
    Q_INVOKABLE [[nodiscard]] static QString turnedTo(int page, int count, const QString& lines) {
        if (count <= 1) return lines;
        return lines.isEmpty() ? place(page, count)
                               : place(page, count) + QStringLiteral(". ") + lines;
    }
};

} // namespace vantle
