// The shortcuts part of the settings model.
#include "base/Words.h"
#include "sensing/FocusLink.h"
#include "surfaces/settings/SettingsView.h"
#include "tracking/Settings.h"

#include <QPointer>

namespace vantle {

void SettingsView::setFocusLinked(bool linked) {
    m_focusLinked = linked;
    settings::focusLinked.write(m_env.preferences, linked);
    Q_EMIT switched();
    if (linked) listShortcuts();
}

void SettingsView::listShortcuts() {
    const int listing = ++m_listings;
    m_env.focusLink.listShortcuts([view = QPointer(this), listing](const QStringList& names) {
        if (!view || listing != view->m_listings) return; // a later request is pending
        view->m_focusShortcutNames = names;
        Q_EMIT view->shortcutsChanged();
    });
}

bool SettingsView::hasNoShortcuts() const {
    return m_focusShortcutNames && m_focusShortcutNames->isEmpty();
}

/// A deleted shortcut stays in the menu while it is chosen, since the next session would still try
/// it.
QList<QString> SettingsView::choices(const QString& chosen) const {
    QList<QString> all{Words::tr("Choose a Shortcut")};
    all += m_focusShortcutNames.value_or(QStringList());
    if (!chosen.isEmpty() && all.indexOf(chosen, 1) < 0) all << chosen;
    return all;
}

int SettingsView::choice(const QString& chosen) const {
    return chosen.isEmpty() ? 0 : static_cast<int>(choices(chosen).indexOf(chosen, 1));
}

void SettingsView::chooseStartShortcut(int choice) {
    m_focusStartShortcut = choice > 0 ? startChoices().value(choice) : QString();
    setFocusShortcut(settings::startShortcut, m_focusStartShortcut);
}

void SettingsView::chooseStopShortcut(int choice) {
    m_focusStopShortcut = choice > 0 ? stopChoices().value(choice) : QString();
    setFocusShortcut(settings::stopShortcut, m_focusStopShortcut);
}

void SettingsView::setFocusShortcut(const Preference<QString>& shortcut, const QString& name) {
    shortcut.write(m_env.preferences, name);
    Q_EMIT shortcutsChanged();
}

void SettingsView::openShortcuts() {
    const Result<> opened = m_env.openShortcuts();
    m_shortcutsFailure =
        opened ? QString()
               : Words::tr("Couldn't open Shortcuts: %1").arg(opened.error().description());
    Q_EMIT shortcutsChanged();
}

} // namespace vantle
