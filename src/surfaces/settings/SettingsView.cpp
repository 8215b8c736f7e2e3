#include "surfaces/settings/SettingsView.h"

#include "app/AppModel.h"
#include "platform/Autostart.h"
#include "platform/Preferences.h"
#include "sensing/AutoRules.h"
#include "sensing/FocusLink.h"
#include "tracking/NotificationCenter.h"
#include "tracking/Settings.h"

#include <algorithm>
#include <utility>

namespace vantle {

SettingsView::SettingsView(Environment environment)
    : m_env(std::move(environment))
    , m_gaps({m_env.model.hotKey(), m_env.tray, m_env.idleSource, m_env.idleInhibition,
              m_env.frontmostApp, m_env.overlayStage, m_env.copy}) {
    m_env.rules.loadIfNeeded();
    for (const PreferenceRowModel::Entry& entry : settingsTable())
        m_rows << new PreferenceRowModel(entry, m_env.preferences, m_gaps, this);
    readState();
    refreshApps();
    follow();
    if (m_focusLinked) listShortcuts();
}

SettingsView::~SettingsView() = default;

void SettingsView::follow() {
    const HotKey& hotKey = m_env.model.hotKey();
    connect(&hotKey, &HotKey::outcomeChanged, this, &SettingsView::hotKeyChanged);
    connect(&m_env.rules, &AutoRules::rulesChanged, this, &SettingsView::refreshApps);
    connect(&m_env.rules, &AutoRules::seenAppsChanged, this, &SettingsView::refreshApps);
    connect(&m_env.rules, &AutoRules::persistenceErrorChanged, this,
            &SettingsView::appsFailureChanged);
    connect(&m_env.model, &AppModel::skillsChanged, this, &SettingsView::refreshApps);
    // In a sandbox the answer to a change comes later.
    settings::loginByPortal.watch(m_env.preferences, this, [this] { readState(); });
    // Other windows write preferences too.
    connect(&m_env.preferences, &Preferences::changed, this, &SettingsView::readPreferences);
}

void SettingsView::readState() {
    m_launchAtLogin = m_env.autostart.isRegistered();
    readPreferences();
}

void SettingsView::readPreferences() {
    const Preferences& stored = m_env.preferences;
    m_focusLinked = settings::focusLinked.read(stored);
    m_focusStartShortcut = settings::startShortcut.read(stored);
    m_focusStopShortcut = settings::stopShortcut.read(stored);
    m_durationStyle = settings::durationStyle.read(stored);
    Q_EMIT switched();
    Q_EMIT shortcutsChanged();
    Q_EMIT durationChanged();
}

QList<QObject*> SettingsView::rows(PreferenceRowModel::Section section) const {
    QList<QObject*> found;
    for (PreferenceRowModel* const row : m_rows)
        if (row->section() == section) found << row;
    return found;
}

void SettingsView::setLaunchAtLogin(bool on) {
    (on ? m_env.autostart.registerItem() : m_env.autostart.unregisterItem()).ignore();
    // The switch shows the actual state, and thus whether it worked.
    m_launchAtLogin = m_env.autostart.isRegistered();
    Q_EMIT switched();
}

bool SettingsView::isHotKeyActive() const { return m_env.model.hotKey().isRegistered(); }

QString SettingsView::hotKeyFailure() const {
    if (m_env.model.hotKey().isRegistered()) return {};
    return m_env.model.hotKey().registrationError().value_or(QString());
}

QList<QString> SettingsView::durationChoices() const {
    QList<QString> choices;
    for (const DurationStyle style : durationstyle::all)
        choices << QStringLiteral("%1 · %2").arg(durationstyle::label(style),
                                                 durationstyle::sample(style));
    return choices;
}

int SettingsView::durationChoice() const {
    return static_cast<int>(std::ranges::find(durationstyle::all, m_durationStyle) -
                            durationstyle::all.begin());
}

void SettingsView::chooseDuration(int choice) {
    if (choice < 0 || choice >= static_cast<int>(durationstyle::all.size())) return;
    m_durationStyle = durationstyle::all.at(static_cast<std::size_t>(choice));
    durationstyle::adopt(m_durationStyle, m_env.preferences, m_env.notifications);
    Q_EMIT durationChanged();
}

void SettingsView::replayWelcome() {
    m_welcomeReplayArmed = true;
    Q_EMIT welcomeReplayArmedChanged();
    Q_EMIT m_env.notifications.HFShowWelcome();
}

} // namespace vantle
