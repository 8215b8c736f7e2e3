// Services of a desktop that answer and signal with any arguments, over a bus: what is understood
// stays in its range, and what none of them said in the right types stays unknown.
#include "BusSubjects.h"
#include "BusValues.h"
#include "Input.h"
#include "PlayedBus.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QHash>
#include <QTemporaryDir>

#include <memory>

namespace vantle::fuzz {
namespace {

std::vector<MakeSubject> allSubjects() {
    std::vector<MakeSubject> all = desktopSubjects();
    for (const MakeSubject each : requestSubjects())
        all.push_back(each);
    return all;
}

/// What each method of a service returns.
Expected expectedOf(const PlayedBus::Call& call) {
    static const QHash<QByteArray, Expected> answers{
        {"GetActive", {"b"}},
        {"Read", {"v", "v"}},
        {"AddIdleWatch", {"u"}},
        {"AddUserActiveWatch", {"u"}},
        {"GetIdletime", {"t"}},
        {"setShortcutKeys", {"a(ai)"}},
        {"shortcutKeys", {"a(ai)"}},
        {"globalShortcutAvailable", {"b"}},
        {"CreateSession", {"o"}},
        {"BindShortcuts", {"o"}},
        {"RequestBackground", {"o"}},
        {"SaveFile", {"o"}},
        {"GetSession", {"o"}},
        {"GetUser", {"o"}},
        {"ListInhibitors", {"a(ssssuu)"}},
        {"IsInhibited", {"b"}},
        {"HasInhibition", {"b"}},
        {"GetExtensionInfo", {"a{sv}", {}, "state"}},
        {"EnableExtension", {"b"}},
        {"unloadScript", {"b"}},
        {"loadScript", {"i"}},
        {"RequestName", {"u"}},
    };
    static const QHash<QByteArray, QByteArray> properties{
        {"org.gnome.Mutter.DisplayConfig", "i"},
        {"org.freedesktop.portal.GlobalShortcuts", "u"},
        {kLogin + ".User", "(so)"},
        {kLogin + ".Session", "b"},
        {"org.gnome.Shell", "s"},
    };
    if (call.member == "Get") return {"v", properties.value(call.text)};
    return answers.value(call.member);
}

/// The object with which a portal answers the request.
QByteArray requestOf(const PlayedBus::Call& call) {
    const QByteArray key = QByteArray("\x0c\0\0\0handle_token", 16);
    const qsizetype at = call.body.indexOf("vantle_", call.body.indexOf(key));
    QByteArray caller = call.caller.mid(1);
    caller.replace('.', '_');
    return kPortalPath + "/request/" + caller + "/" + call.body.mid(at, 7 + 32);
}

/// Nothing that a service sends may make the program print.
void refuseMessages(QtMsgType type, const QMessageLogContext&, const QString& text) {
    if (type != QtDebugMsg && type != QtInfoMsg) promise(false, qPrintable(text));
}

struct Process {
    Process() {
        static int count = 1;
        static char name[] = "fuzz_bus_services";
        static char* names[] = {name, nullptr};
        qputenv("XDG_RUNTIME_DIR", folder.path().toLocal8Bit());
        application = std::make_unique<QCoreApplication>(count, names);
        session = QDBusConnection::connectToBus(QString::fromLatin1(bus.address()),
                                                QStringLiteral("session"));
        promise(session.isConnected(), "a connection");
        qInstallMessageHandler(refuseMessages);
    }

    QTemporaryDir folder;
    PlayedBus bus;
    std::unique_ptr<QCoreApplication> application;
    QDBusConnection session{QString()};
};

void play(Process& process, Draw draw) {
    static const std::vector<MakeSubject> subjects = allSubjects();
    PlayedBus& bus = process.bus;
    const std::uint8_t mode = draw.byte();
    const auto makeSubject = subjects[draw.below(subjects.size())];
    const Likeness likeness = mode % 4 == 3 ? Likeness::Never : Likeness::Mostly;
    Draw answers(draw.bytes(draw.byte())); // drawn from in the bus's thread
    QByteArray lastRequest;
    bus.play([&](const PlayedBus::Call& call) -> std::optional<BusBody> {
        if (call.body.contains("handle_token")) lastRequest = requestOf(call);
        if (answers.byte() % 16 == 15) return std::nullopt;
        return drawBody(answers, expectedOf(call), likeness);
    });
    World world{.session = process.session,
                .address = bus.address(),
                .time = fakes::VirtualTime(),
                .folder = process.folder.path()};
    const auto subject = makeSubject(world);
    const auto look = [&] {
        subject->check();
        if (likeness == Likeness::Never) subject->checkUnknown();
    };
    bus.settle();
    look();
    const auto services = subject->services();
    const auto told = subject->told();
    for (int step = 0; step < 32 && !draw.isAtEnd(); ++step) {
        const std::uint8_t kind = draw.byte();
        if (kind < 0x80 && !told.empty()) {
            const Told& message = told[kind % told.size()];
            const BusBody body = drawBody(draw, message.expected, likeness);
            const QByteArray path = message.path == kLastRequest ? lastRequest : message.path;
            const QByteArray sender = kind % 32 == 31 ? ":1.9" : PlayedBus::kService;
            if (path.isEmpty())
                continue;
            else if (message.isCall)
                bus.call(path, message.interface, message.member, body, sender);
            else
                bus.signal(path, message.interface, message.member, body, sender);
        } else if (kind < 0xE0) {
            subject->act(draw.byte());
        } else {
            bus.setOwner(services, kind % 2 != 0);
            bus.settle();
            if (kind % 2 == 0) subject->checkGone();
        }
        bus.settle();
        promise(!bus.isBroken() && process.session.isConnected(), "a bus that goes on");
        look();
    }
    bus.setOwner(services, true); // the library remembers owners beyond this input
    bus.settle();
}

} // namespace
} // namespace vantle::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantle::fuzz;
    static Process process;
    play(process, Draw(viewOf(data, size)));
    process.bus.play(nullptr);
    process.bus.settle(); // what the end of the subject sent
    return 0;
}
