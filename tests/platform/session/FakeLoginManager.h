// The login manager, as the code under test meets it.
#pragma once

#include "support/Buses.h"

#include <QDBusArgument>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusUnixFileDescriptor>
#include <QDBusVariant>
#include <QObject>
#include <QVariantMap>

#include <gtest/gtest.h>

#include <fcntl.h>
#include <unistd.h>

namespace vantle::tests {

/// The session, with the one property that matters.
class FakeLoginSession final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.login1.Session")
    Q_PROPERTY(bool LockedHint MEMBER locked)

public:
    bool locked = false;
};

/// The user, whose Display is the session on the screen: its id and its path.
struct FakeDisplay {
    QString id;
    QDBusObjectPath path;
    friend bool operator==(const FakeDisplay&, const FakeDisplay&) = default;
};
inline QDBusArgument& operator<<(QDBusArgument& argument, const FakeDisplay& display) {
    argument.beginStructure();
    argument << display.id << display.path;
    argument.endStructure();
    return argument;
}
inline const QDBusArgument& operator>>(const QDBusArgument& argument, FakeDisplay& display) {
    argument.beginStructure();
    argument >> display.id >> display.path;
    argument.endStructure();
    return argument;
}

class FakeLoginUser final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.login1.User")
    Q_PROPERTY(vantle::tests::FakeDisplay Display MEMBER display)

public:
    FakeDisplay display;
};

/// Has one session, named by `sessionPath`. Its inhibitors are pipes: one is held as long as the
/// other end is open somewhere.
class FakeLoginManager final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.login1.Manager")

public:
    static QString sessionPath() { return QStringLiteral("/org/freedesktop/login1/session/_32"); }
    static QString userPath() { return QStringLiteral("/org/freedesktop/login1/user/_1000"); }

    FakeLoginSession session;

    bool silent = false; ///< gives out no inhibitor, and never says so
    int inhibited = 0;   ///< how often an inhibitor was asked for
    QStringList asked;   ///< the last request for one

    void appear() {
        m_client.bus().registerObject(QStringLiteral("/org/freedesktop/login1"), this,
                                      QDBusConnection::ExportAllInvokables);
        m_client.bus().registerObject(sessionPath(), &session,
                                      QDBusConnection::ExportAllProperties);
        qDBusRegisterMetaType<FakeDisplay>();
        m_user.display = {QStringLiteral("2"), QDBusObjectPath(sessionPath())};
        m_client.bus().registerObject(userPath(), &m_user, QDBusConnection::ExportAllProperties);
        ASSERT_TRUE(m_client.takeName(QStringLiteral("org.freedesktop.login1")));
    }
    void disappear() { m_client.leave(); }

    ~FakeLoginManager() override {
        if (m_readEnd >= 0) ::close(m_readEnd);
    }

    /// `begins` is a truth value unless a test says otherwise.
    void prepareForSleep(const QVariant& begins) {
        auto signal = QDBusMessage::createSignal(QStringLiteral("/org/freedesktop/login1"),
                                                 QStringLiteral("org.freedesktop.login1.Manager"),
                                                 QStringLiteral("PrepareForSleep"));
        m_client.bus().send(signal << begins);
    }
    /// The signals Lock and Unlock, of our session unless another one is named.
    void signalLock(bool locks, const QString& path = sessionPath()) {
        m_client.bus().send(
            QDBusMessage::createSignal(path, QStringLiteral("org.freedesktop.login1.Session"),
                                       locks ? QStringLiteral("Lock") : QStringLiteral("Unlock")));
    }
    void hintLocked(bool to, const QString& path = sessionPath()) {
        if (path == sessionPath()) session.locked = to;
        tellProperties(QVariantMap{{QStringLiteral("LockedHint"), to}}, path);
    }
    /// Signals changed properties, of the right type or not.
    void tellProperties(const QVariant& changed, const QString& path = sessionPath()) {
        auto signal =
            QDBusMessage::createSignal(path, QStringLiteral("org.freedesktop.DBus.Properties"),
                                       QStringLiteral("PropertiesChanged"));
        m_client.bus().send(signal << QStringLiteral("org.freedesktop.login1.Session") << changed
                                   << QStringList());
    }
    /// Whether the inhibitor that was given out last is still held.
    [[nodiscard]] bool isInhibited() const {
        if (m_readEnd < 0) return false;
        char byte = 0;
        return ::read(m_readEnd, &byte, 1) != 0; // 0 is end of file: the other side is closed
    }

    Q_INVOKABLE QDBusUnixFileDescriptor Inhibit(const QString& what, const QString& who,
                                                const QString& why, const QString& mode) {
        ++inhibited;
        asked = {what, who, why, mode};
        if (silent) {
            setDelayedReply(true);
            return {};
        }
        if (m_readEnd >= 0) ::close(m_readEnd);
        int ends[2] = {-1, -1};
        EXPECT_EQ(::pipe2(ends, O_CLOEXEC | O_NONBLOCK), 0);
        m_readEnd = ends[0];
        QDBusUnixFileDescriptor given;
        given.giveFileDescriptor(ends[1]);
        return given;
    }
    Q_INVOKABLE QDBusObjectPath GetSession(const QString& id) {
        if (id != QLatin1String("2")) sendErrorReply(QStringLiteral("local.NoSuchSession"));
        return QDBusObjectPath(sessionPath());
    }
    Q_INVOKABLE QDBusObjectPath GetUser(uint uid) {
        EXPECT_EQ(uid, ::getuid());
        return QDBusObjectPath(userPath());
    }

private:
    FakeLoginUser m_user;
    BusClient m_client;
    int m_readEnd = -1;
};

} // namespace vantle::tests

Q_DECLARE_METATYPE(vantle::tests::FakeDisplay)
