#include "BusSubjects.h"
#include "Input.h"
#include "platform/applications/ApplicationIdentity.h"
#include "platform/gnome/MutterIdleSource.h"
#include "platform/gnome/MutterScreenPower.h"
#include "platform/gnome/ShellFrontmostApp.h"
#include "platform/kde/KWinFrontmostApp.h"
#include "platform/session/DesktopIdleInhibition.h"
#include "platform/session/LoginScreenPower.h"
#include "platform/session/SessionScreenPower.h"

#include <cmath>

namespace vantle::fuzz {
namespace {

const QByteArray kLoginPath = "/org/freedesktop/login1";
const QByteArray kLoginSession = "/org/freedesktop/login1/session/_32";

template <typename Power>
class PowerSubject : public Subject {
public:
    template <typename... Arguments>
    explicit PowerSubject(Arguments&&... arguments) : m_power(arguments...) {
        QObject::connect(&m_power, &ScreenPower::slept, [this] { change(true); });
        QObject::connect(&m_power, &ScreenPower::woke, [this] { change(false); });
    }
    void check() const override { promise(m_power.asleep() == m_isAsleep, "sleep is told"); }
    void checkUnknown() const override { promise(!m_power.asleep(), "awake while unknown"); }

private:
    void change(bool asleep) {
        promise(asleep != m_isAsleep, "sleep and wake take turns");
        m_isAsleep = asleep;
    }

    Power m_power;
    bool m_isAsleep = false;
};

class ScreenSavers final : public PowerSubject<SessionScreenPower> {
public:
    explicit ScreenSavers(World& world) : PowerSubject(world.session) {}
    QList<QByteArray> services() const override {
        return {"org.freedesktop.ScreenSaver", "org.gnome.ScreenSaver", "org.mate.ScreenSaver",
                "org.cinnamon.ScreenSaver", "org.xfce.ScreenSaver"};
    }
    std::vector<Told> told() const override {
        std::vector<Told> all;
        for (const QByteArray& each : services())
            all.push_back({"/ScreenSaver", each, "ActiveChanged", {"b"}});
        return all;
    }
};

class Mutter final : public PowerSubject<MutterScreenPower> {
public:
    explicit Mutter(World& world) : PowerSubject(world.session) {}
    QList<QByteArray> services() const override { return {"org.gnome.Mutter.DisplayConfig"}; }
    std::vector<Told> told() const override {
        return {{"/org/gnome/Mutter/DisplayConfig",
                 kProperties,
                 "PropertiesChanged",
                 {"sa{sv}as", {}, "PowerSaveMode"}}};
    }
};

class Login final : public PowerSubject<LoginScreenPower> {
public:
    explicit Login(World& world) : PowerSubject(world.address, QStringLiteral("2")) {}
    QList<QByteArray> services() const override { return {kLogin}; }
    std::vector<Told> told() const override {
        return {{kLoginPath, kLogin + ".Manager", "PrepareForSleep", {"b"}},
                {kLoginSession, kLogin + ".Session", "Lock", {}},
                {kLoginSession, kLogin + ".Session", "Unlock", {}},
                {kLoginSession, kProperties, "PropertiesChanged", {"sa{sv}as", {}, "LockedHint"}},
                {"/", kLogin + ".Session", "Lock", {}}};
    }
};

class Idle final : public Subject {
public:
    explicit Idle(World& world) : m_time(world.time), m_source(world.session, world.time) {}
    QList<QByteArray> services() const override { return {"org.gnome.Mutter.IdleMonitor"}; }
    std::vector<Told> told() const override {
        return {{"/org/gnome/Mutter/IdleMonitor/Core", services().first(), "WatchFired", {"u"}}};
    }
    void act(std::uint8_t byte) override { m_time.advance(byte); }
    void check() const override {
        const auto seconds = m_source.secondsSinceLastInput();
        promise(seconds.has_value() == m_source.canTell(), "what can be told is told");
        promise(!seconds || (std::isfinite(*seconds) && *seconds >= 0), "a time since the input");
    }
    void checkUnknown() const override { promise(!m_source.canTell(), "an unknown idle time"); }

private:
    fakes::VirtualTime& m_time;
    mutable MutterIdleSource m_source;
};

class Inhibition final : public Subject {
public:
    explicit Inhibition(World& world) : m_inhibition(world.session, world.address) {
        m_inhibition.setFollowed(true);
    }
    QList<QByteArray> services() const override {
        return {"org.gnome.SessionManager", "org.kde.Solid.PowerManagement.PolicyAgent", kLogin};
    }
    std::vector<Told> told() const override {
        return {{"/org/gnome/SessionManager", services()[0], "InhibitorAdded", {"o"}},
                {"/org/kde/Solid/PowerManagement/PolicyAgent",
                 services()[1],
                 "InhibitionsChanged",
                 {"a(ss)as"}},
                {kLoginPath, kProperties, "PropertiesChanged", {"sa{sv}as"}}};
    }
    void act(std::uint8_t byte) override {
        m_inhibition.setFollowed(byte % 4 != 0);
        if (byte % 4 == 0) promise(!m_inhibition.isHeld(), "not held while not followed");
    }
    void checkUnknown() const override { promise(!m_inhibition.isHeld(), "not held, by none"); }

private:
    DesktopIdleInhibition m_inhibition;
};

template <typename Source>
class AppSubject : public Subject {
public:
    void act(std::uint8_t byte) override { m_time.advance(byte / 100.0); }
    void check() const override {
        constexpr qsizetype kMostText = 200;
        const auto application = source().frontmost();
        if (source().coverage() == AppCoverage::None)
            promise(!application, "no application without reports");
        if (!application) return;
        promise(application->name.size() <= kMostText, "a name of limited length");
        promise(application->bundleId.size() <= kMostText, "an id of limited length");
    }
    void checkUnknown() const override {
        promise(source().coverage() == AppCoverage::None, "no reports");
    }

protected:
    explicit AppSubject(World& world) : m_time(world.time) {}
    [[nodiscard]] ReportedFrontmostApp::Reading reading() {
        return {.scheduler = m_time,
                .resolve =
                    [](const WindowHints& hints) {
                        promise(!hints.processId || *hints.processId > 0, "a process");
                        static const DesktopEntryIndex none{std::vector<ApplicationEntry>()};
                        return resolveIdentity(hints, {}, none);
                    },
                .oursHasTheKeyboard = [] { return false; }};
    }
    [[nodiscard]] virtual Source& source() const = 0;

private:
    fakes::VirtualTime& m_time;
};

class Shell final : public AppSubject<ShellFrontmostApp> {
public:
    explicit Shell(World& world)
        : AppSubject(world)
        , m_source(world.session, {world.folder}, reading()) {}
    QList<QByteArray> services() const override { return {"org.gnome.Shell"}; }
    std::vector<Told> told() const override {
        const QByteArray reports = "/local/vantle/Vantle/ShellFrontmost";
        return {{"/org/gnome/Shell",
                 "org.gnome.Shell.Extensions",
                 "ExtensionStateChanged",
                 {"sa{sv}", {}, "state"}},
                {reports, "local.vantle.Frontmost", "report", {"s"}, true},
                {reports, "local.vantle.Frontmost", "report", {"s"}, true},
                {reports, "local.vantle.Frontmost", "end", {}, true}};
    }
    void act(std::uint8_t byte) override {
        AppSubject::act(byte);
        if (byte % 8 == 1) m_source.acceptHelp();
    }

private:
    [[nodiscard]] ShellFrontmostApp& source() const override { return m_source; }
    mutable ShellFrontmostApp m_source;
};

class KWin final : public AppSubject<KWinFrontmostApp> {
public:
    explicit KWin(World& world) : AppSubject(world), m_source(world.session, reading()) {}
    QList<QByteArray> services() const override { return {"org.kde.KWin"}; }
    std::vector<Told> told() const override {
        return {{"/local/vantle/Vantle/KWinFrontmost",
                 "local.vantle.Frontmost",
                 "report",
                 {"ssss"},
                 true}};
    }

private:
    [[nodiscard]] KWinFrontmostApp& source() const override { return m_source; }
    mutable KWinFrontmostApp m_source;
};

} // namespace

std::vector<MakeSubject> desktopSubjects() {
    return {&make<ScreenSavers>, &make<Mutter>, &make<Login>, &make<Idle>,
            &make<Inhibition>,   &make<Shell>,  &make<KWin>};
}

} // namespace vantle::fuzz
