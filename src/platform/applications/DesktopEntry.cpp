#include "platform/applications/DesktopEntry.h"

#include <QByteArrayView>

namespace vantle {

namespace {

struct Free {
    void operator()(gpointer memory) const { g_free(memory); }
    void operator()(gchar** texts) const { g_strfreev(texts); }
};
using Text = std::unique_ptr<gchar, Free>;
using Texts = std::unique_ptr<gchar*, Free>;

} // namespace

DesktopEntry::DesktopEntry() : m_file(g_key_file_new()) {}

std::optional<DesktopEntry> DesktopEntry::read(const QByteArray& content) {
    const QByteArray text =
        QByteArrayView(content).isValidUtf8() ? content : QString::fromUtf8(content).toUtf8();
    DesktopEntry entry;
    if (!g_key_file_load_from_data(entry.m_file.get(), text.constData(),
                                   static_cast<gsize>(text.size()), G_KEY_FILE_NONE, nullptr))
        return std::nullopt;
    return entry;
}

QString DesktopEntry::text(const char* key) const {
    return QString::fromUtf8(
        Text(g_key_file_get_string(m_file.get(), G_KEY_FILE_DESKTOP_GROUP, key, nullptr)).get());
}

QString DesktopEntry::localText(const char* key) const {
    return QString::fromUtf8(
        Text(g_key_file_get_locale_string(m_file.get(), G_KEY_FILE_DESKTOP_GROUP, key, nullptr,
                                          nullptr))
            .get());
}

bool DesktopEntry::is(const char* key, const char* word) const {
    return text(key).trimmed().compare(QLatin1String(word), Qt::CaseInsensitive) == 0;
}

QStringList DesktopEntry::command(const char* key) const {
    gchar** split = nullptr;
    if (!g_shell_parse_argv(text(key).toUtf8().constData(), nullptr, &split, nullptr)) return {};
    const Texts words(split);
    QStringList list;
    for (gchar** word = split; *word != nullptr; ++word)
        list.append(QString::fromUtf8(*word));
    return list;
}

void DesktopEntry::setText(const char* key, const QString& text) {
    g_key_file_set_string(m_file.get(), G_KEY_FILE_DESKTOP_GROUP, key, text.toUtf8().constData());
}

QByteArray DesktopEntry::content() const {
    gsize size = 0;
    const Text text(g_key_file_to_data(m_file.get(), &size, nullptr));
    return QByteArray(text.get(), static_cast<qsizetype>(size));
}

QString DesktopEntry::quotedArgument(const QString& argument) {
    constexpr QStringView kReserved = u" \t\n\"'\\><~|&;$*?#()`";
    constexpr QStringView kEscapedInQuotes = u"\"`$\\";
    bool needsQuotes = argument.isEmpty();
    QString text;
    for (const QChar character : argument) {
        needsQuotes = needsQuotes || kReserved.contains(character);
        if (kEscapedInQuotes.contains(character)) text += QLatin1Char('\\');
        if (character == QLatin1Char('%')) text += character; // else a field code begins
        text += character;
    }
    return needsQuotes ? QLatin1Char('"') + text + QLatin1Char('"') : text;
}

} // namespace vantle
