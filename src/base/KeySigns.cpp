#include "base/KeySigns.h"

#include <QStringView>

namespace vantle {

namespace {

constexpr char16_t kCommand = u'⌘';
constexpr char16_t kOption = u'⌥';

bool isSign(QChar letter) { return letter == kCommand || letter == kOption; }

/// The other desktop's sign stands for two keys: with Alt it is a global combination, which uses
/// Super; alone it is a key of a window, which uses Ctrl, since desktops reserve most combinations
/// with Super.
QString modifiers(QStringView signs) {
    const bool alt = signs.contains(kOption);
    const bool command = signs.contains(kCommand);
    QString words = alt ? QStringLiteral("Alt+") : QString();
    if (command) words += alt ? QStringLiteral("Super+") : QStringLiteral("Ctrl+");
    return words;
}

} // namespace

QString keySignsInWords(const QString& text) {
    QString words;
    for (qsizetype i = 0; i < text.size();) {
        const qsizetype start = i;
        while (i < text.size() && isSign(text.at(i)))
            ++i;
        if (i == start)
            words += text.at(i++);
        else
            words += modifiers(QStringView(text).sliced(start, i - start));
        // Screen readers skip a comma too.
        if (i < text.size() && text.at(i) == u',' && words.endsWith(QLatin1Char('+'))) {
            words += QStringLiteral("Comma");
            ++i;
        }
    }
    return words;
}

} // namespace vantle
