#include "platform/gnome/CustomKeyHotKey.h"

#include "platform/AcceleratorText.h"
#include "platform/ToggleCommand.h"

#include <QRegularExpression>

#include <utility>

namespace vantle {

namespace {

const QString kDaemon = QStringLiteral("org.gnome.SettingsDaemon.MediaKeys");

const QString kSchema = QStringLiteral("org.gnome.settings-daemon.plugins.media-keys");
const QString kList = QStringLiteral("custom-keybindings");
const QString kPath =
    QStringLiteral("/org/gnome/settings-daemon/plugins/media-keys/custom-keybindings/vantle/");

/// The schema with the path of one key.
const QString kKeySchema = kSchema + QStringLiteral(".custom-keybinding:") + kPath;

/// Parses an array of strings printed by gsettings; none contains a quote.
QStringList stringsOf(const QString& printed) {
    static const QRegularExpression quoted(QStringLiteral("'([^']*)'"));
    QStringList strings;
    for (auto each = quoted.globalMatch(printed); each.hasNext();)
        strings << each.next().captured(1);
    return strings;
}

QString arrayOf(const QStringList& strings) {
    if (strings.isEmpty()) return QStringLiteral("@as []");
    return QStringLiteral("['%1']").arg(strings.join(QStringLiteral("', '")));
}

/// Quotes a text for gsettings; requires one without quotes and backslashes.
QString quoted(const QString& text) { return QStringLiteral("\"%1\"").arg(text); }

} // namespace

CustomKeyHotKey::CustomKeyHotKey(const QDBusConnection& session, ProcessRunner& processes,
                                 QString tool)
    : m_daemon(session, kDaemon)
    , m_processes(processes)
    , m_tool(std::move(tool)) {
    if (m_tool.isEmpty() || !session.isConnected()) {
        m_isOffered = false;
        return;
    }
    QObject::connect(&m_daemon, &FollowedService::came, &m_daemon, [this] { setOffered(true); });
    QObject::connect(&m_daemon, &FollowedService::gone, &m_daemon, [this] { setOffered(false); });
}

void CustomKeyHotKey::setOffered(bool offered) {
    if (m_isOffered == offered) return;
    m_isOffered = offered;
    unregisterKey();
    if (onOfferedChanged) onOfferedChanged();
}

HotKeyPort::Outcome CustomKeyHotKey::registerKey() {
    if (!m_isAllowed) return m_outcome = {Registration::NotAllowed};
    start(&CustomKeyHotKey::find);
    return m_outcome = {Registration::Waiting};
}

void CustomKeyHotKey::unregisterKey() {
    ++*m_attempt;
    m_next = nullptr;
}

HotKeyPort::Outcome CustomKeyHotKey::allow(bool allowed) {
    m_isAllowed = allowed;
    start(allowed ? &CustomKeyHotKey::add : &CustomKeyHotKey::remove);
    return m_outcome = {allowed ? Registration::Waiting : Registration::NotAllowed};
}

void CustomKeyHotKey::start(Job job) {
    ++*m_attempt;
    if (m_toolRuns)
        m_next = job;
    else
        (this->*job)();
}

void CustomKeyHotKey::find() {
    run({QStringLiteral("get"), kSchema, kList}, [this](const QString& printed) {
        if (stringsOf(printed).contains(kPath))
            readKeys();
        else
            tell({Registration::NotAllowed}); // the user removed it
    });
}

void CustomKeyHotKey::add() {
    run({QStringLiteral("get"), kSchema, kList}, [this](const QString& printed) {
        QStringList keys = stringsOf(printed);
        keys.removeAll(kPath);
        addTo(keys << kPath);
    });
}

void CustomKeyHotKey::addTo(QStringList keys) {
    const auto set = QStringLiteral("set");
    // The list last: it makes the daemon read the other values.
    run({set, kKeySchema, QStringLiteral("name"), quoted(QStringLiteral("Vantle"))}, [=,
                                                                                      this](auto&) {
        run({set, kKeySchema, QStringLiteral("command"), quoted(toggleCommand())},
            [=, this](auto&) {
                run({set, kKeySchema, QStringLiteral("binding"),
                     quoted(QStringLiteral("<Alt><Super>b"))},
                    [=, this](auto&) {
                        run({set, kSchema, kList, arrayOf(keys)}, [this](auto&) { readKeys(); });
                    });
            });
    });
}

void CustomKeyHotKey::remove() {
    run({QStringLiteral("get"), kSchema, kList}, [this](const QString& printed) {
        QStringList keys = stringsOf(printed);
        keys.removeAll(kPath);
        run({QStringLiteral("set"), kSchema, kList, arrayOf(keys)}, [this](auto&) {
            run({QStringLiteral("reset-recursively"), kKeySchema}, [](auto&) {});
        });
    });
}

void CustomKeyHotKey::readKeys() {
    run({QStringLiteral("get"), kKeySchema, QStringLiteral("binding")},
        [this](const QString& printed) {
            const QString binding = stringsOf(printed).value(0);
            if (binding.isEmpty() || binding == QLatin1String("disabled"))
                tell({Registration::KeysRemoved});
            else
                tell({Registration::Registered, 0, acceleratorText(binding)});
        });
}

void CustomKeyHotKey::run(const QStringList& arguments, Output take) {
    const auto done = [this, take = std::move(take), attempt = std::weak_ptr(m_attempt),
                       number = *m_attempt](const std::optional<ProcessRunner::Output>& output) {
        const auto now = attempt.lock();
        if (!now) return;
        m_toolRuns = false;
        if (*now != number) {
            if (const Job next = std::exchange(m_next, nullptr)) (this->*next)();
            return;
        }
        if (output && output->exitStatus == 0)
            take(QString::fromUtf8(output->standardOutput));
        else
            tell({Registration::Failed, kToolFailed});
    };
    m_toolRuns = true;
    m_processes.collect({m_tool, arguments}, done);
}

void CustomKeyHotKey::tell(const Outcome& outcome) {
    if (std::exchange(m_outcome, outcome) != outcome && onOutcomeChanged) onOutcomeChanged(outcome);
}

} // namespace vantle
