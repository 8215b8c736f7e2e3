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
};

} // namespace vantle
