// vantle-shortcuts list         prints the names of the shortcuts, one per line, the user's first
// vantle-shortcuts run NAME     replaces itself by that shortcut
//
// Exit status: 0, or that of the shortcut; 64 wrong usage; 66 no such shortcut, or it cannot be
// started; 74 the list could not be printed.
#include "sensing/shortcuts/ShortcutsFolder.h"

#include <algorithm>
#include <cerrno>
#include <string_view>
#include <sysexits.h>
#include <unistd.h>

namespace {

/// Returns whether all of it was written to standard output.
bool print(const QByteArray& text) {
    qsizetype at = 0;
    while (at < text.size()) {
        const ssize_t count = ::write(STDOUT_FILENO, text.constData() + at,
                                      static_cast<std::size_t>(text.size() - at));
        if (count < 0 && errno == EINTR) continue;
        if (count <= 0) return false;
        at += count;
    }
    return true;
}

} // namespace

int main(int argc, char** argv) {
    const auto folders = vantle::ShortcutsFolder::all();
    const std::string_view verb = argc > 1 ? argv[1] : "";
    if (verb == "list" && argc == 2) {
        QList<QByteArray> names;
        for (const auto& folder : folders)
            for (const QByteArray& name : folder.names())
                if (!names.contains(name)) names.append(name);
        return print(names.isEmpty() ? QByteArray() : names.join('\n') + '\n') ? EX_OK : EX_IOERR;
    }
    if (verb == "run" && argc == 3) {
        const auto first = std::ranges::find_if(
            folders, [&](const auto& folder) { return folder.isShortcut(argv[2]); });
        if (first != folders.end()) first->become(argv[2]);
        return EX_NOINPUT;
    }
    return EX_USAGE;
}
