#include "platform/applications/DesktopEntry.h"

#include <QByteArray>
#include <QList>

namespace vantle::desktopentry {

QString escaped(const QString& value) {
    QString text;
    for (const QChar character : value) {
        switch (character.unicode()) {
        case u'\\':
            text += QLatin1String("\\\\");
            break;
        case u'\n':
            text += QLatin1String("\\n");
            break;
        case u'\r':
            text += QLatin1String("\\r");
            break;
        case u'\t':
            text += QLatin1String("\\t");
            break;
        case u' ':
            text += text.isEmpty() ? QLatin1String("\\s") : QLatin1String(" ");
            break;
        default:
            text += character;
        }
    }
    return text;
}

QString quotedArgument(const QString& argument) {
    constexpr QStringView kReserved = u" \t\n\"'\\><~|&;$*?#()`";
    constexpr QStringView kEscapedInQuotes = u"\"`$\\";
    bool needsQuotes = argument.isEmpty();
    QString text;
    for (const QChar character : argument) {
        needsQuotes = needsQuotes || kReserved.contains(character);
        if (kEscapedInQuotes.contains(character)) text += QLatin1Char('\\');
        if (character == QLatin1Char('%')) text += character; // else the start of a field code
        text += character;
    }
    return needsQuotes ? QLatin1Char('"') + text + QLatin1Char('"') : text;
}

std::optional<QString> value(const QByteArray& content, const QString& key) {
    bool inEntry = false;
    for (const QByteArray& bytes : content.split('\n')) {
        const QString line = QString::fromUtf8(bytes).trimmed();
        if (line.startsWith(QLatin1Char('['))) inEntry = line == QLatin1String("[Desktop Entry]");
        const qsizetype equals = line.indexOf(QLatin1Char('='));
        if (inEntry && equals > 0 && line.first(equals).trimmed() == key)
            return line.sliced(equals + 1).trimmed();
    }
    return std::nullopt;
}

} // namespace vantle::desktopentry
