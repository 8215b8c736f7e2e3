#include "platform/kde/KGlobalAccelHotKey.h"

#include "base/Words.h"

#include <QDBusMessage>
#include <QDBusMetaType>
#include <QKeySequence>
#include <QStringList>
#include <QVariant>

#include <utility>

namespace vantle {

namespace {

const QString kName = QStringLiteral("org.kde.kglobalaccel");
const QString kPath = QStringLiteral("/kglobalaccel");
const QString kInterface = QStringLiteral("org.kde.KGlobalAccel");
const QString kComponentInterface = QStringLiteral("org.kde.kglobalaccel.Component");

const QString kComponent = QStringLiteral("local.vantle.Vantle");
const QString kAction = QStringLiteral("toggle");

/// The action's id in the service, and its label in the settings.
QStringList actionId() {
    return {kComponent, kAction, QStringLiteral("Vantle"), Words::tr("Start or stop a session")};
}

/// Flags of `setShortcutKeys`.
constexpr uint kSetPresent = 2; ///< use remembered keys, else the given ones
constexpr uint kIsDefault = 8;  ///< the default that the settings offer

constexpr int kAltSuperB = static_cast<int>(Qt::ALT) | static_cast<int>(Qt::META) | Qt::Key_B;

BusKeySequence combination() { return {{kAltSuperB, 0, 0, 0}}; }

QVariant asArgument(const BusKeySequence& keys) { return QVariant::fromValue(keys); }

/// Returns the keys as text for the user; empty without keys.
QString textOf(const QList<BusKeySequence>& keys) {
    QStringList texts;
    for (const BusKeySequence& each : keys)
        if (!each.isEmpty()) texts << each.sequence().toString(QKeySequence::NativeText);
    return texts.join(QStringLiteral(", "));
}

} // namespace

KGlobalAccelHotKey::KGlobalAccelHotKey(const QDBusConnection& session, const Clock& clock)
    : m_session(session)
    , m_service(session, kName)
    , m_held(clock) {
    qDBusRegisterMetaType<BusKeySequence>();
    qDBusRegisterMetaType<Keys>();
    QObject::connect(&m_service, &FollowedService::came, &m_service, [this] { setOffered(true); });
    QObject::connect(&m_service, &FollowedService::gone, &m_service, [this] { setOffered(false); });
    if (!m_session.isConnected()) m_isOffered = false;
    hear();
}

KGlobalAccelHotKey::~KGlobalAccelHotKey() { unregisterKey(); }

void KGlobalAccelHotKey::hear() {
    const auto isOurs = [](const QDBusMessage& signal) {
        return signal.arguments().value(1).toString() == kAction;
    };
    m_service.hear(
        {}, kComponentInterface, QStringLiteral("globalShortcutPressed"),
        [this, isOurs](const QDBusMessage& signal) {
            if (!isOurs(signal) || !m_isWanted || !m_held.pressed()) return;
            if (m_pressed) m_pressed();
        },
        kComponent);
    m_service.hear(
        {}, kComponentInterface, QStringLiteral("globalShortcutReleased"),
        [this, isOurs](const QDBusMessage& signal) {
            if (isOurs(signal)) m_held.released();
        },
        kComponent);
    m_service.hear(kPath, kInterface, QStringLiteral("yourShortcutsChanged"),
                   [this](const QDBusMessage& signal) {
                       const auto id = signal.arguments().value(0).toStringList();
                       if (!m_isWanted || id.mid(0, 2) != actionId().mid(0, 2)) return;
                       ++m_attempt;
                       activate(true); // keys alone do not activate it
                   });
}

void KGlobalAccelHotKey::setOffered(bool offered) {
    if (m_isOffered == offered) return;
    m_isOffered = offered;
    unregisterKey();
    if (onOfferedChanged) onOfferedChanged();
}

int KGlobalAccelHotKey::installHandler(std::function<void()> pressed) {
    m_pressed = std::move(pressed);
    return 0;
}

HotKeyPort::Outcome KGlobalAccelHotKey::registerKey() {
    if (m_isWanted && m_outcome.registration == Registration::Registered) return m_outcome;
    m_isWanted = true;
    m_held.forget();
    begin();
    return m_outcome = {Registration::Waiting};
}

void KGlobalAccelHotKey::unregisterKey() {
    if (!std::exchange(m_isWanted, false)) return;
    ++m_attempt;
    m_outcome = {};
    auto call = m_service.call(kPath, kInterface, QStringLiteral("setInactive"));
    if (m_service.isThere()) m_session.send(call << actionId());
}

void KGlobalAccelHotKey::begin() {
    ++m_attempt;
    auto call = m_service.call(kPath, kInterface, QStringLiteral("doRegister"));
    m_session.send(call << actionId());
    ask<Keys>(QStringLiteral("setShortcutKeys"),
              {actionId(), QVariant::fromValue(Keys{combination()}), kIsDefault},
              [](const Keys&) {});
    ask<Keys>(QStringLiteral("shortcutKeys"), {actionId()}, [this](const Keys& remembered) {
        if (textOf(remembered).isEmpty())
            askWhetherFree([this] { activate(false); });
        else
            activate(true);
    });
}

void KGlobalAccelHotKey::askWhetherFree(std::function<void()> isFree) {
    ask<bool>(QStringLiteral("globalShortcutAvailable"), {asArgument(combination()), kComponent},
              [this, isFree = std::move(isFree)](bool free) {
                  if (free)
                      isFree();
                  else
                      tell({Registration::HeldByAnother});
              });
}

void KGlobalAccelHotKey::activate(bool mayBeHeldByAnother) {
    ask<Keys>(QStringLiteral("setShortcutKeys"),
              {actionId(), QVariant::fromValue(Keys{combination()}), kSetPresent},
              [this, mayBeHeldByAnother](const Keys& taken) {
                  const QString keys = textOf(taken);
                  const bool isFixed = keys == textOf({combination()});
                  const auto removed = [this] { tell({Registration::KeysRemoved}); };
                  if (!keys.isEmpty())
                      tell({Registration::Registered, 0, isFixed ? QString() : keys});
                  else if (mayBeHeldByAnother)
                      askWhetherFree(removed);
                  else
                      removed();
              });
}

template <typename Answer, typename Take>
void KGlobalAccelHotKey::ask(const QString& method, const QVariantList& arguments, Take take) {
    auto call = m_service.call(kPath, kInterface, method);
    call.setArguments(arguments);
    m_service.ask<Answer>(
        call,
        [this, attempt = m_attempt, take](const Answer& answer) {
            if (attempt == m_attempt) take(answer);
        },
        [this, attempt = m_attempt] {
            if (attempt == m_attempt) tell({Registration::Failed, kNoAnswer});
        });
}

void KGlobalAccelHotKey::tell(const Outcome& outcome) {
    if (std::exchange(m_outcome, outcome) != outcome && onOutcomeChanged) onOutcomeChanged(outcome);
}

} // namespace vantle
