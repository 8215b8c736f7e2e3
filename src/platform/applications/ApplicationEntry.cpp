#include "platform/applications/ApplicationEntry.h"

#include "platform/applications/Interpreters.h"

#include <QByteArrayView>
#include <QHash>

#include <array>
#include <utility>

namespace vantle {

namespace {

/// Longest name kept, in UTF-16 units; no application has a longer one.
constexpr qsizetype kMaxName = 200;

using Values = QHash<QString, QString>;

/// Whether a key is looked at; most of an entry is texts in other languages.
bool isOfUse(QByteArrayView key, const QStringList& locales) {
    const qsizetype bracket = key.indexOf('[');
    if (bracket < 0) return true;
    if (key.first(bracket) != "Name" || !key.endsWith(']')) return false;
    const QByteArrayView locale = key.sliced(bracket + 1).chopped(1);
    return locales.contains(QLatin1String(locale.data(), locale.size()));
}

/// The keys of the group "Desktop Entry", values as they stand. Of several, the first.
Values valuesOf(QByteArrayView content, const QStringList& locales) {
    Values values;
    bool inEntry = false;
    while (!content.isEmpty()) {
        const qsizetype end = content.indexOf('\n');
        const QByteArrayView line = (end < 0 ? content : content.first(end)).trimmed();
        content = end < 0 ? QByteArrayView() : content.sliced(end + 1);
        if (line.startsWith('[')) {
            if (inEntry) break; // actions and the like
            inEntry = line == "[Desktop Entry]";
            continue;
        }
        const qsizetype equals = line.indexOf('=');
        if (!inEntry || equals <= 0 || line.startsWith('#')) continue;
        const QByteArrayView name = line.first(equals).trimmed();
        if (!isOfUse(name, locales)) continue;
        const QString key = QString::fromUtf8(name);
        if (!values.contains(key))
            values.insert(key, QString::fromUtf8(line.sliced(equals + 1).trimmed()));
    }
    return values;
}

bool isTrue(const Values& values, const QString& key) {
    return values.value(key).compare(QLatin1String("true"), Qt::CaseInsensitive) == 0;
}

/// The escapes of values, as far as names hold any.
QString unescaped(const QString& value) {
    QString text;
    for (qsizetype i = 0; i < value.size(); ++i) {
        if (value[i] != QLatin1Char('\\') || i + 1 == value.size()) {
            text += value[i];
            continue;
        }
        const QChar next = value[++i];
        text += next == QLatin1Char('\\') ? next : QLatin1Char(' ');
        if (next != QLatin1Char('\\') && !QStringLiteral("sntr").contains(next)) text += next;
    }
    return text;
}

QString nameOf(const Values& values, const QStringList& locales) {
    QString name = values.value(QStringLiteral("Name"));
    for (const QString& locale : locales) {
        const QString own = values.value(QStringLiteral("Name[%1]").arg(locale));
        if (own.isEmpty()) continue;
        name = own;
        break;
    }
    return unescaped(name).simplified().left(kMaxName);
}

/// The words of a command; empty when a quote is not closed.
QStringList wordsOf(const QString& command) {
    QStringList words;
    QString word;
    bool quoted = false;
    bool begun = false;
    for (qsizetype i = 0; i < command.size(); ++i) {
        const QChar c = command[i];
        if (c == QLatin1Char('"')) {
            quoted = !quoted;
            begun = true;
        } else if (c == QLatin1Char('\\') && quoted && i + 1 < command.size()) {
            word += command[++i];
        } else if (c == QLatin1Char(' ') && !quoted) {
            if (begun) words.append(std::exchange(word, {}));
            begun = false;
        } else {
            word += c;
            begun = true;
        }
    }
    if (quoted) return {};
    if (begun) words.append(word);
    return words;
}

/// What is written before the program itself in some entries: shells, sandboxes, interpreters.
bool isLauncher(const QString& program) {
    if (interpreters::isOne(program)) return true;
    return program == QLatin1String("env") || program == QLatin1String("sh") ||
           program == QLatin1String("bash") || program == QLatin1String("flatpak") ||
           program == QLatin1String("snap") || program == QLatin1String("pkexec");
}

QString programOf(const QString& command) {
    for (const QString& word : wordsOf(command)) {
        if (word.startsWith(QLatin1Char('%'))) break;
        const QString base = word.section(QLatin1Char('/'), -1);
        if (base == QLatin1String("env") || word.contains(QLatin1Char('='))) continue;
        // What runs inside one of them can't be told from here.
        return isLauncher(base) ? QString() : base;
    }
    return {};
}

} // namespace

std::optional<ApplicationEntry> ApplicationEntry::read(const QString& id, const QByteArray& content,
                                                       const QStringList& locales) {
    const Values values = valuesOf(content, locales);
    if (values.value(QStringLiteral("Type")) != QLatin1String("Application")) return std::nullopt;
    if (isTrue(values, QStringLiteral("Hidden"))) return std::nullopt;
    ApplicationEntry entry;
    entry.id = id;
    entry.name = nameOf(values, locales);
    if (entry.name.isEmpty()) entry.name = id;
    entry.windowClass = values.value(QStringLiteral("StartupWMClass"));
    entry.program = programOf(values.value(QStringLiteral("Exec")));
    entry.isShown = !isTrue(values, QStringLiteral("NoDisplay"));
    entry.isInTerminal = isTrue(values, QStringLiteral("Terminal"));
    entry.isTerminal = values.value(QStringLiteral("Categories"))
                           .split(QLatin1Char(';'))
                           .contains(QLatin1String("TerminalEmulator"));
    return entry;
}

QStringList ApplicationEntry::localeNames(const QLocale& locale) {
    const QString full = locale.name(); // "de_AT"; "C" has no texts of its own
    if (full == QLatin1String("C")) return {};
    return {full, full.section(QLatin1Char('_'), 0, 0)};
}

} // namespace vantle
