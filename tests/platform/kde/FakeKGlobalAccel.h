// KDE's service of global shortcuts on the bus of a test, as the code under test meets it.
#pragma once

#include "platform/kde/BusKeySequence.h"
#include "support/Buses.h"

#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QMap>
#include <QObject>
#include <QStringList>

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

namespace vantle::tests {

/// Remembers the keys of each action, as long as it lives. An action is fresh until it was given
/// keys, or none.
class FakeKGlobalAccel final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.KGlobalAccel")

public:
    using Keys = QList<vantle::BusKeySequence>;
    static constexpr int kAltSuperB = 0x18000042;
    static constexpr int kAltSuperC = 0x18000043;

    FakeKGlobalAccel() {
        qDBusRegisterMetaType<BusKeySequence>();
        qDBusRegisterMetaType<Keys>();
    }
    void appear() {
        m_client.bus().registerObject(kPath, this, QDBusConnection::ExportAllInvokables);
        ASSERT_TRUE(m_client.takeName(kName));
    }
    void disappear() { m_client.bus().interface()->unregisterService(kName); }

    bool refuses = false;   ///< answers by errors
    bool hesitates = false; ///< answers nothing

    struct Action {
        QStringList id;
        Keys keys = {};
        Keys defaults = {};
        bool isFresh = true;
        bool isPresent = false;
    };
    [[nodiscard]] Action ours() const { return m_actions.value(kOurs); }
    [[nodiscard]] bool isHeld() const {
        const Action action = ours();
        return action.isPresent && !action.keys.isEmpty() && !action.keys.first().isEmpty();
    }

    /// What the user does in the settings: one chord, or 0 for none.
    void choose(int chord) {
        Action& action = m_actions[kOurs];
        action.keys = chord == 0 ? Keys() : Keys{{{chord, 0, 0, 0}}};
        action.isFresh = false;
        auto signal = QDBusMessage::createSignal(kPath, QStringLiteral("org.kde.KGlobalAccel"),
                                                 QStringLiteral("yourShortcutsChanged"));
        signal << action.id << QVariant::fromValue(action.keys);
        m_client.bus().send(signal);
    }
    void setHeldByAnother(bool held) { m_isHeldByAnother = held; }

    /// The service repeats a press as long as the key is held.
    void press(int times = 1) {
        if (!isHeld()) return;
        for (int i = 0; i < times; ++i)
            send(QStringLiteral("globalShortcutPressed"), kOurs);
        send(QStringLiteral("globalShortcutReleased"), kOurs);
    }
    void send(const QString& signalName, const std::pair<QString, QString>& action) {
        auto signal = QDBusMessage::createSignal(QStringLiteral("/component/local_vantle_Vantle"),
                                                 QStringLiteral("org.kde.kglobalaccel.Component"),
                                                 signalName);
        m_client.bus().send(signal << action.first << action.second << qlonglong(0));
    }
    /// Until all that was sent is on its way to the others.
    void flush() { (void)m_client.bus().interface()->isServiceRegistered(kName); }

    Q_INVOKABLE void doRegister(const QStringList& id) { m_actions[of(id)].id = id; }
    Q_INVOKABLE QList<vantle::BusKeySequence> shortcutKeys(const QStringList& id) {
        if (hinder()) return {};
        return m_actions.value(of(id)).keys;
    }
    Q_INVOKABLE bool globalShortcutAvailable(const vantle::BusKeySequence& keys, const QString&) {
        return keys.chords.value(0) != kAltSuperB || !m_isHeldByAnother;
    }
    Q_INVOKABLE QList<vantle::BusKeySequence>
    setShortcutKeys(const QStringList& id, const QList<vantle::BusKeySequence>& keys, uint flags) {
        if (hinder()) return {};
        Action& action = m_actions[of(id)];
        if (flags == 8) return action.defaults = keys;
        action.isPresent = true;
        if (action.isFresh) action.keys = m_isHeldByAnother ? Keys{{{0, 0, 0, 0}}} : keys;
        action.isFresh = false;
        return action.keys;
    }
    Q_INVOKABLE void setInactive(const QStringList& id) { m_actions[of(id)].isPresent = false; }

private:
    [[nodiscard]] static std::pair<QString, QString> of(const QStringList& id) {
        return {id.value(0), id.value(1)};
    }
    bool hinder() {
        if (refuses) sendErrorReply(QDBusError::Failed);
        if (hesitates) setDelayedReply(true);
        return refuses || hesitates;
    }

    const QString kName = QStringLiteral("org.kde.kglobalaccel");
    const QString kPath = QStringLiteral("/kglobalaccel");
    const std::pair<QString, QString> kOurs{QStringLiteral("local.vantle.Vantle"),
                                            QStringLiteral("toggle")};
    BusClient m_client;
    QMap<std::pair<QString, QString>, Action> m_actions;
    bool m_isHeldByAnother = false;
};

} // namespace vantle::tests
