// What windows and processes tell of themselves, of any bytes: the application that comes of it can
// be kept in a file, and is the same each time. Fields are separated by a byte that no UTF-8 has.
#include "Input.h"
#include "base/Text.h"
#include "platform/AcceleratorText.h"
#include "platform/applications/ApplicationIdentity.h"
#include "platform/applications/Interpreters.h"

#include <QList>

namespace vantle::fuzz {
namespace {

constexpr char kBetweenFields = '\xFF';
/// Longest text of a window that is used, in UTF-16 units.
constexpr qsizetype kMaxText = 200;

DesktopEntryIndex someEntries() {
    std::vector<ApplicationEntry> entries(3);
    entries[0] = {.id = QStringLiteral("org.example.Painter"),
                  .name = QStringLiteral("Painter"),
                  .windowClass = QStringLiteral("Painter"),
                  .program = QStringLiteral("painter")};
    entries[1] = {.id = QStringLiteral("suite_draw"),
                  .name = QStringLiteral("Draw"),
                  .windowClass = QStringLiteral("draw"),
                  .program = QStringLiteral("suite")};
    entries[2] = {.id = QStringLiteral("org.example.Terminal"),
                  .name = QStringLiteral("Terminal"),
                  .windowClass = QStringLiteral("term"),
                  .program = QStringLiteral("term"),
                  .isTerminal = true};
    return DesktopEntryIndex(std::move(entries));
}

void checkText(const QString& shown) {
    promise(shown.size() <= kMaxText, "a text of limited length");
    promise(shown == shown.simplified(), "a text without spaces at its ends");
    promise(text::fromUtf8(shown.toUtf8()) == shown, "a text that a file can hold");
}

} // namespace
} // namespace vantle::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantle;
    static const DesktopEntryIndex index = fuzz::someEntries();
    const QList<QByteArray> fields =
        fuzz::viewOf(data, size).toByteArray().split(fuzz::kBetweenFields);
    const auto text = [&](qsizetype field) { return QString::fromUtf8(fields.value(field)); };

    ProcessScope scope = ProcessScope::parse(fields.value(3), fields.value(4));
    scope.program = text(5);
    if (interpreters::isOne(scope.program))
        scope.script = interpreters::scriptOf(fields.value(6).split('\0'));
    const WindowHints hints{
        .applicationId = text(0), .windowClass = text(1), .instance = text(2), .processId = {}};
    const Application application = resolveIdentity(hints, scope, index);
    fuzz::checkText(application.bundleId);
    fuzz::checkText(application.name);
    fuzz::promise(application.bundleId.isEmpty() == application.name.isEmpty(),
                  "an identity has a name");
    fuzz::promise(sameApplication(resolveIdentity(hints, scope, index), application),
                  "the same each time");

    const QString keys = acceleratorText(text(0));
    fuzz::promise(keys.isEmpty() || acceleratorText(keys) == keys, "keys are written one way");
    return 0;
}
