// Programs on the bus that call the program's own objects with any arguments: each call has one
// answer, a click has a place near a desktop, and a menu runs what its entries say.
#include "BusValues.h"
#include "Input.h"
#include "PlayedBus.h"
#include "platform/session/ApplicationService.h"
#include "platform/session/BusSessionStatus.h"
#include "platform/tray/DesktopTrayItem.h"

#include <QCursor>
#include <QDBusConnection>
#include <QGuiApplication>
#include <QIcon>
#include <QPixmap>

#include <array>
#include <memory>

namespace vantle::fuzz {
namespace {

/// A method of one of the objects.
struct Method {
    const char* path;
    const char* interface;
    const char* member;
    const char* signature;
};

constexpr const char* kObject = "/local/vantle/Vantle";
constexpr const char* kApplication = "org.freedesktop.Application";
constexpr const char* kProperties = "org.freedesktop.DBus.Properties";
constexpr const char* kItem = "/StatusNotifierItem";
constexpr const char* kItemInterface = "org.kde.StatusNotifierItem";
constexpr const char* kMenu = "/StatusNotifierItem/Menu";
constexpr const char* kMenuInterface = "com.canonical.dbusmenu";

constexpr std::array kMethods{
    Method{kObject, kApplication, "Activate", "a{sv}"},
    Method{kObject, kApplication, "Open", "asa{sv}"},
    Method{kObject, kApplication, "ActivateAction", "sava{sv}"},
    Method{kObject, kProperties, "Get", "ss"},
    Method{kObject, kProperties, "GetAll", "s"},
    Method{kObject, kProperties, "Set", "ssv"},
    Method{kObject, "", "ActivateAction", "sava{sv}"},
    Method{kItem, kItemInterface, "Activate", "ii"},
    Method{kItem, kItemInterface, "ContextMenu", "ii"},
    Method{kItem, kItemInterface, "SecondaryActivate", "ii"},
    Method{kItem, kItemInterface, "Scroll", "is"},
    Method{kItem, kProperties, "Get", "ss"},
    Method{kItem, kProperties, "GetAll", "s"},
    Method{kItem, "org.freedesktop.DBus.Introspectable", "Introspect", ""},
    Method{kMenu, kMenuInterface, "GetLayout", "iias"},
    Method{kMenu, kMenuInterface, "GetGroupProperties", "aias"},
    Method{kMenu, kMenuInterface, "GetProperty", "is"},
    Method{kMenu, kMenuInterface, "Event", "isvu"},
    Method{kMenu, kMenuInterface, "EventGroup", "a(isvu)"},
    Method{kMenu, kMenuInterface, "AboutToShow", "i"},
    Method{kMenu, kMenuInterface, "AboutToShowGroup", "ai"},
    Method{kMenu, kProperties, "Get", "ss"},
};

/// What a watcher of tray items returns.
Expected expectedOf(const PlayedBus::Call& call) {
    if (call.member == "Get") return {"v", "b"};
    if (call.member == "RequestName") return {"u"};
    return {};
}

struct Process {
    Process() {
        static int count = 1;
        static char name[] = "fuzz_bus_calls";
        static char* names[] = {name, nullptr};
        qputenv("QT_QPA_PLATFORM", "offscreen");
        application = std::make_unique<QGuiApplication>(count, names);
        session = QDBusConnection::connectToBus(QString::fromLatin1(bus.address()),
                                                QStringLiteral("session"));
        promise(session.isConnected(), "a connection");
        QPixmap pixels(16, 16);
        pixels.fill(Qt::black);
        image = pixels;
    }

    PlayedBus bus;
    std::unique_ptr<QGuiApplication> application;
    QDBusConnection session{QString()};
    QIcon image;
};

void play(Process& process, Draw draw) {
    constexpr int kNear = 1 << 21; // px; farther than that is no place
    constexpr int kEntries = 3;
    PlayedBus& bus = process.bus;
    const bool tellsPointer = draw.mostly();
    Draw answers(draw.bytes(draw.byte() % 16)); // drawn from in the bus's thread
    bus.play([&](const PlayedBus::Call& call) -> std::optional<BusBody> {
        if (answers.byte() % 16 == 15) return std::nullopt;
        return drawBody(answers, expectedOf(call), Likeness::Mostly);
    });

    ApplicationService service(process.session);
    BusSessionStatus status(process.session, service);
    status.publish([] { return SessionStatus::Values{.state = QStringLiteral("running")}; });
    service.start();
    DesktopTrayItem item(process.session, tellsPointer);
    QObject::connect(&item, &TrayItem::clicked, [&](QPoint place) {
        promise(place.manhattanLength() <= kNear, "a click near a desktop");
        if (tellsPointer)
            promise((place - QCursor::pos()).manhattanLength() <= 200, "a click at the pointer");
    });
    int chosen = 0;
    QList<TrayMenuEntry> entries;
    for (int i = 0; i < kEntries; ++i)
        entries.append({QStringLiteral("Entry_%1").arg(i), [&chosen] { ++chosen; }});
    item.setMenu(entries);
    item.setImage(process.image, false); // a template would be drawn for each input
    bus.settle();

    int sent = bus.replies();
    for (int step = 0; step < 32 && !draw.isAtEnd(); ++step) {
        const std::uint8_t kind = draw.byte();
        const Method& method = kMethods[kind % kMethods.size()];
        const int before = chosen;
        if (kind < 0xF0) {
            const BusBody body = drawBody(draw, {method.signature}, Likeness::Mostly);
            bus.call(method.path, method.interface, method.member, body);
            ++sent;
        } else {
            status.noteChange();
            item.setToolTip(QStringLiteral("Vantle\n%1").arg(step));
        }
        bus.settle();
        promise(!bus.isBroken() && process.session.isConnected(), "a bus that goes on");
        promise(bus.replies() == sent, "one answer to each call");
        promise(chosen == before || QByteArrayView(method.member).startsWith("Event"),
                "an entry runs on an event");
    }
}

} // namespace
} // namespace vantle::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantle::fuzz;
    static Process process;
    play(process, Draw(viewOf(data, size)));
    process.bus.play(nullptr);
    process.bus.settle(); // what the end of the objects sent
    return 0;
}
