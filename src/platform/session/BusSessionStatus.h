// The session's status on the bus, read only.
#pragma once

#include "platform/SessionStatus.h"

#include <QDBusAbstractAdaptor>
#include <QDBusConnection>
#include <QObject>

#include <optional>
#include <utility>

namespace vantle {

/// The D-Bus side. PropertiesChanged names the properties and brings no values: a reader asks for
/// what it needs and counts seconds by itself, and a change without readers costs one message.
class SessionAdaptor final : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "local.vantle.Session1")
    Q_PROPERTY(QString State READ state)
    Q_PROPERTY(QString SkillName READ skillName)
    Q_PROPERTY(QString SkillColor READ skillColor)
    Q_PROPERTY(qlonglong ActiveSeconds READ activeSeconds)
    Q_PROPERTY(qlonglong AsOf READ asOf)
    Q_PROPERTY(qlonglong TodaySeconds READ todaySeconds)

public:
    SessionAdaptor(const QDBusConnection& session, QObject& object)
        : QDBusAbstractAdaptor(&object)
        , m_session(session) {}

    void setRead(SessionStatus::Read read);
    /// Emits PropertiesChanged from the event loop, once for all changes of one turn.
    void noteChange();

    [[nodiscard]] QString state() const { return values().state; }
    [[nodiscard]] QString skillName() const { return values().skillName; }
    [[nodiscard]] QString skillColor() const { return values().skillColor; }
    [[nodiscard]] qlonglong activeSeconds() const { return values().activeSeconds; }
    [[nodiscard]] qlonglong asOf() const { return values().asOf; }
    [[nodiscard]] qlonglong todaySeconds() const { return values().todaySeconds; }

private:
    [[nodiscard]] const SessionStatus::Values& values() const;
    void tell();

    QDBusConnection m_session;
    SessionStatus::Read m_read;
    bool m_isTelling = false;
    mutable std::optional<SessionStatus::Values> m_kept; ///< until the next turn of the event loop
};

/// Stands on the object that the program has on the bus, which must outlive this. The values of one
/// GetAll are of one moment.
class BusSessionStatus final : public SessionStatus {
public:
    /// `object` is what the program exports with its adaptors.
    BusSessionStatus(const QDBusConnection& session, QObject& object);

    void publish(Read read) override { m_adaptor.setRead(std::move(read)); }
    void noteChange() override { m_adaptor.noteChange(); }

private:
    SessionAdaptor& m_adaptor;
};

} // namespace vantle
