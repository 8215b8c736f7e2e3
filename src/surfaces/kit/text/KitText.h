// Text as people count it, for the views.
#pragma once

#include "base/KeySigns.h"
#include "base/Text.h"
#include "base/Words.h"

#include <QColor>
#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace vantle {

/// One for each QML engine. Main thread.
class KitText : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    explicit KitText(QObject* parent = nullptr) : QObject(parent) {}

    /// How many user-perceived characters the text has.
    Q_INVOKABLE [[nodiscard]] static int count(const QString& text) {
        return static_cast<int>(text::characterCount(text));
    }
    /// The first `limit` user-perceived characters: all of the text when it has no more.
    Q_INVOKABLE [[nodiscard]] static QString first(const QString& text, int limit) {
        return text::hasAtMost(text, limit) ? text : text::firstCharacters(text, limit);
    }
    /// The text as it is read out: keys in words that this keyboard has.
    Q_INVOKABLE [[nodiscard]] static QString spoken(const QString& text) {
        return keySignsInWords(text);
    }
    /// "Color 30D158"
    Q_INVOKABLE [[nodiscard]] static QString digits(const QColor& color) {
        return Words::tr("Color %1").arg(color.name(QColor::HexRgb).sliced(1).toUpper());
    }
    /// What is read out after the name of a colour that can be chosen.
    Q_INVOKABLE [[nodiscard]] static QString swatch(const QColor& color, bool chosen) {
        return (chosen ? Words::tr("%1, selected") : Words::tr("%1, not selected"))
            .arg(digits(color));
    }
    /// Which of how many pages is shown; `page` counts from 0.
    Q_INVOKABLE [[nodiscard]] static QString place(int page, int count) {
        return Words::tr("Page %1 of %2").arg(QString::number(page + 1), QString::number(count));
    }
    /// What is spoken when that page is turned to: which one it is, where there are more, and what
    /// stands on it unless that is empty.
    Q_INVOKABLE [[nodiscard]] static QString turnedTo(int page, int count, const QString& lines) {
        if (count <= 1) return lines;
        return lines.isEmpty() ? place(page, count)
                               : place(page, count) + QStringLiteral(". ") + lines;
    }
};

} // namespace vantle
