#include "platform/applications/ApplicationEntry.h"

#include "platform/applications/DesktopEntry.h"
#include "platform/applications/Interpreters.h"

namespace vantle {

namespace {

/// Longest name kept, in UTF-16 units.
constexpr qsizetype kMaxName = 200;

/// Commands that precede the program in some entries: shells, sandboxes, interpreters.
bool isLauncher(const QString& program) {
    if (interpreters::isOne(program)) return true;
    return program == QLatin1String("env") || program == QLatin1String("sh") ||
           program == QLatin1String("bash") || program == QLatin1String("flatpak") ||
           program == QLatin1String("snap") || program == QLatin1String("pkexec");
}

QString programOf(const QStringList& command) {
    for (const QString& word : command) {
        if (word.startsWith(QLatin1Char('%'))) break;
        const QString base = word.section(QLatin1Char('/'), -1);
        if (base == QLatin1String("env") || word.contains(QLatin1Char('='))) continue;
        // What runs inside a launcher is unknown.
        return isLauncher(base) ? QString() : base;
    }
    return {};
}

} // namespace

std::optional<ApplicationEntry> ApplicationEntry::read(const QString& id,
                                                       const QByteArray& content) {
    const auto file = DesktopEntry::read(content);
    if (!file || file->text("Type") != QLatin1String("Application") || file->is("Hidden", "true"))
        return std::nullopt;
    ApplicationEntry entry;
    entry.id = id;
    entry.name = file->localText("Name").simplified().left(kMaxName);
    if (entry.name.isEmpty()) entry.name = id;
    entry.windowClass = file->text("StartupWMClass");
    entry.program = programOf(file->command("Exec"));
    entry.isShown = !file->is("NoDisplay", "true");
    entry.isInTerminal = file->is("Terminal", "true");
    entry.isTerminal = file->text("Categories")
                           .split(QLatin1Char(';'))
                           .contains(QLatin1String("TerminalEmulator"));
    return entry;
}

} // namespace vantle
