#include "platform/gnome/MutterScreenPower.h"

#include "platform/bus/BusValue.h"

#include <QDBusMessage>
#include <QDBusVariant>
#include <QStringList>
#include <QVariantMap>

namespace vantle {

namespace {

const QString kDisplays = QStringLiteral("org.gnome.Mutter.DisplayConfig");
const QString kDisplaysPath = QStringLiteral("/org/gnome/Mutter/DisplayConfig");
const QString kProperties = QStringLiteral("org.freedesktop.DBus.Properties");
const QString kMode = QStringLiteral("PowerSaveMode");

constexpr unsigned kSavesPower = 0;

} // namespace

MutterScreenPower::MutterScreenPower(const QDBusConnection& session)
    : m_displays(session, kDisplays) {
    connect(&m_displays, &FollowedService::came, this, &MutterScreenPower::ask);
    connect(&m_displays, &FollowedService::gone, this, [this] { setCause(kSavesPower, false); });
    m_displays.hear(
        kDisplaysPath, kProperties, QStringLiteral("PropertiesChanged"),
        [this](const QDBusMessage& signal) { takeProperties(signal.arguments()); }, kDisplays);
}

void MutterScreenPower::ask() {
    m_displays.ask<QDBusVariant>(m_displays.get(kDisplaysPath, kDisplays, kMode),
                                 [this](const QDBusVariant& mode) { take(mode.variant()); });
}

void MutterScreenPower::takeProperties(const QVariantList& arguments) {
    const auto changed = busValue<QVariantMap>(arguments.value(1));
    const auto outdated = busValue<QStringList>(arguments.value(2));
    if (changed && changed->contains(kMode))
        take(changed->value(kMode));
    else if (outdated && outdated->contains(kMode))
        ask();
}

void MutterScreenPower::take(const QVariant& mode) {
    // 0 is on, -1 unknown; 1 to 3 are power saving modes.
    setCause(kSavesPower, busValue<int>(mode).value_or(-1) > 0);
}

} // namespace vantle
