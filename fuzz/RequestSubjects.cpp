#include "BusSubjects.h"
#include "Input.h"
#include "fakes/MemoryPreferences.h"
#include "platform/kde/KGlobalAccelHotKey.h"
#include "platform/session/ApplicationService.h"
#include "platform/session/DesktopReadingWishes.h"
#include "platform/session/PortalAutostart.h"
#include "platform/session/PortalHotKey.h"
#include "platform/session/PortalMotionSetting.h"
#include "platform/session/PortalSaveDialog.h"

#include <QDir>

#include <optional>
#include <utility>

namespace vantle::fuzz {
namespace {

const QByteArray kPortalSession = "/org/freedesktop/portal/desktop/session/1";

Told answerOfRequest(const QByteArray& key) {
    return {kLastRequest, "org.freedesktop.portal.Request", "Response", {"ua{sv}", {}, key}};
}

template <typename Key>
class KeySubject : public Subject {
public:
    template <typename... Arguments>
    explicit KeySubject(World& world, Arguments&&... arguments)
        : m_time(world.time)
        , m_key(arguments...) {
        m_key.onOutcomeChanged = [this](const auto& outcome) { take(outcome); };
        m_key.onOfferedChanged = [this] { m_isWanted = m_isRegistered = false; };
        (void)m_key.installHandler([this] { promise(m_isWanted, "presses of a wanted key"); });
    }
    void act(std::uint8_t byte) override {
        m_time.advance(byte % 4);
        switch (byte % 5) {
        case 0:
            if (m_key.isOffered() != true) break;
            m_isWanted = true;
            return take(m_key.registerKey());
        case 1:
            m_isWanted = m_isRegistered = false;
            return m_key.unregisterKey();
        case 2:
            if (!m_isWanted || m_key.wayToAllow().isEmpty()) break;
            return take(m_key.allow(true));
        default:
            break;
        }
    }
    void checkUnknown() const override {
        promise(!m_isRegistered, "a key that no service confirmed");
    }

protected:
    Key& key() { return m_key; }

private:
    void take(const HotKeyPort::Outcome& outcome) {
        using enum HotKeyPort::Registration;
        promise((outcome.status != 0) == (outcome.registration == Failed), "a status of a failure");
        promise(outcome.keys.isEmpty() || outcome.registration == Registered, "keys that are held");
        promise(QString::fromUtf8(outcome.keys.toUtf8()) == outcome.keys, "keys as a text");
        m_isRegistered = outcome.registration == Registered;
    }

    fakes::VirtualTime& m_time;
    bool m_isWanted = false;
    bool m_isRegistered = false;
    Key m_key;
};

class KdeKey final : public KeySubject<KGlobalAccelHotKey> {
public:
    explicit KdeKey(World& world) : KeySubject(world, world.session, world.time) {}
    QList<QByteArray> services() const override { return {"org.kde.kglobalaccel"}; }
    std::vector<Told> told() const override {
        const QByteArray component = "org.kde.kglobalaccel.Component";
        return {{"/component/vantle", component, "globalShortcutPressed", {"ssx"}},
                {"/component/vantle", component, "globalShortcutReleased", {"ssx"}},
                {"/kglobalaccel", "org.kde.KGlobalAccel", "yourShortcutsChanged", {"asa(ai)"}}};
    }
};

class PortalKey final : public KeySubject<PortalHotKey> {
public:
    explicit PortalKey(World& world)
        : KeySubject(world, world.session, world.address, world.time) {}
    QList<QByteArray> services() const override { return {kPortal}; }
    std::vector<Told> told() const override {
        const QByteArray shortcuts = "org.freedesktop.portal.GlobalShortcuts";
        return {answerOfRequest("session_handle"),
                answerOfRequest("shortcuts"),
                {kPortalPath, shortcuts, "Activated", {"osta{sv}"}},
                {kPortalPath, shortcuts, "Deactivated", {"osta{sv}"}},
                {kPortalPath, shortcuts, "ShortcutsChanged", {"oa(sa{sv})"}},
                {kPortalSession, "org.freedesktop.portal.Session", "Closed", {"a{sv}"}}};
    }
};

class Settings final : public Subject {
public:
    explicit Settings(World& world) : m_wishes(world.session), m_motion(world.session) {}
    QList<QByteArray> services() const override { return {kPortal}; }
    std::vector<Told> told() const override {
        return {
            {kPortalPath, "org.freedesktop.portal.Settings", "SettingChanged", {"ssv", "u"}},
            {kPortalPath, "org.freedesktop.portal.Settings", "SettingChanged", {"ssv", "d"}},
            {kPortalPath, "org.freedesktop.portal.Settings", "SettingChanged", {"ssv", "b"}},
        };
    }
    void check() const override {
        const double scale = m_wishes.textScale();
        promise(scale >= ReadingWishes::kSmallestText && scale <= ReadingWishes::kLargestText,
                "a text size in its range");
    }
    void checkUnknown() const override {
        promise(m_wishes.textScale() == 1.0 && !m_wishes.moreContrast(), "the usual text");
        promise(!m_motion.reduced(), "motion that nobody set");
    }
    void checkGone() const override {}

private:
    DesktopReadingWishes m_wishes;
    PortalMotionSetting m_motion;
};

class BusName final : public Subject {
public:
    explicit BusName(World& world) : m_service(world.session) { m_service.start(); }
    QList<QByteArray> services() const override { return {}; }
    std::vector<Told> told() const override { return {}; }
    void checkUnknown() const override {
        promise(m_service.state() != ApplicationService::State::Serving, "no name");
    }
    void checkGone() const override {}

private:
    ApplicationService m_service;
};

class Autostarted final : public Subject {
public:
    explicit Autostarted(World& world) : m_autostart(world.session, m_preferences, kept()) {}
    QList<QByteArray> services() const override { return {kPortal}; }
    std::vector<Told> told() const override { return {answerOfRequest("autostart")}; }
    void act(std::uint8_t byte) override {
        promise((byte % 2 != 0 ? m_autostart.registerItem() : m_autostart.unregisterItem()).ok(),
                "a question that is sent");
    }
    void checkUnknown() const override {}

private:
    static const Preference<bool>& kept() {
        static const Preference<bool> preference{"autostart", false};
        return preference;
    }

    fakes::MemoryPreferences m_preferences;
    PortalAutostart m_autostart;
};

class Saving final : public Subject {
public:
    explicit Saving(World& world) : m_dialog(world.session, m_other) {}
    QList<QByteArray> services() const override { return {kPortal}; }
    std::vector<Told> told() const override { return {answerOfRequest("uris")}; }
    void act(std::uint8_t byte) override {
        m_open.reset();
        if (byte % 4 == 0) return;
        m_isAnswered = false;
        m_open = m_dialog.ask({.title = QStringLiteral("Save"),
                               .suggestedName = QStringLiteral("out.csv"),
                               .folder = QStringLiteral("/tmp"),
                               .kind = QStringLiteral("Table"),
                               .ending = QStringLiteral("csv")},
                              nullptr, [this](const std::optional<QString>& path) { take(path); });
    }
    void checkUnknown() const override { promise(!m_hasPath, "a path that nobody chose"); }
    void checkGone() const override {}

private:
    class NoDialog final : public SaveDialog {
        std::unique_ptr<OpenSaveDialog> ask(const SaveQuestion&, QWindow*, Answer) override {
            return std::make_unique<OpenSaveDialog>();
        }
    };

    void take(const std::optional<QString>& path) {
        promise(!std::exchange(m_isAnswered, true), "one answer");
        if (!path) return;
        m_hasPath = true;
        promise(QDir::isAbsolutePath(*path), "an absolute path");
        promise(!path->contains(QChar::Null), "a path that the system reads as a whole");
    }

    NoDialog m_other;
    PortalSaveDialog m_dialog;
    std::unique_ptr<OpenSaveDialog> m_open;
    bool m_isAnswered = false;
    bool m_hasPath = false;
};

} // namespace

std::vector<MakeSubject> requestSubjects() {
    return {&make<KdeKey>,  &make<PortalKey>, &make<Settings>,
            &make<BusName>, &make<Saving>,    &make<Autostarted>};
}

} // namespace vantle::fuzz
