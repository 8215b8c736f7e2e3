// Text as people count it, for the views.
#pragma once

#include "base/Text.h"

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
    /// Which of how many pages is shown; `page` counts from 0.
    Q_INVOKABLE [[nodiscard]] static QString place(int page, int count) {
        return tr("Page %1 of %2").arg(QString::number(page + 1), QString::number(count));
    }
    /// What is spoken when that page is turned to: which one it is, and what stands on it.
    Q_INVOKABLE [[nodiscard]] static QString turnedTo(int page, int count, const QString& lines) {
        return place(page, count) + QStringLiteral(". ") + lines;
    }
};

} // namespace vantle
