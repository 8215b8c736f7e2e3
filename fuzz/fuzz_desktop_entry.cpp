// A desktop entry of any bytes: what it says of an application can be told. A program of any name
// is started by the entry that is written for it.
#include "Input.h"
#include "platform/applications/ApplicationEntry.h"
#include "platform/applications/DesktopEntry.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantle;
    const QByteArray content = fuzz::viewOf(data, size).toByteArray();
    const QString id = QStringLiteral("org.example.App");
    const auto application = ApplicationEntry::read(id, content);
    if (application) {
        fuzz::promise(application->id == id, "it keeps its id");
        fuzz::promise(!application->program.contains(QLatin1Char('/')), "a base name");
    }
    const auto entry = DesktopEntry::read(content);
    fuzz::promise(entry || !application, "an application has an entry");
    if (entry) static_cast<void>(entry->command("Exec"));

    // Only its own entry is written by the program.
    const QString program = QLatin1Char('/') + QString::fromUtf8(content).remove(QChar::Null);
    DesktopEntry made;
    made.setText("Exec", DesktopEntry::quotedArgument(program));
    const auto again = DesktopEntry::read(made.content());
    fuzz::promise(again.has_value(), "what is written can be read");
    QString told = program;
    told.replace(QLatin1Char('%'), QLatin1String("%%"));
    fuzz::promise(again->command("Exec") == QStringList(told), "and starts the same program");
    return 0;
}
