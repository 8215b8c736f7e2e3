#include "surfaces/settings/PreferenceRowModel.h"

#include "base/Words.h"
#include "surfaces/settings/DesktopGaps.h"
#include "tracking/Settings.h"

#include <algorithm>
#include <cmath>

namespace vantle {

PreferenceRowModel::PreferenceRowModel(const Entry& entry, Preferences& preferences,
                                       DesktopGaps& gaps, QObject* parent)
    : QObject(parent)
    , m_entry(entry)
    , m_preferences(preferences)
    , m_gaps(gaps) {
    const auto tell = [this] { Q_EMIT changed(); };
    std::visit([&](const auto& setting) { setting.preference.watch(m_preferences, this, tell); },
               m_entry.setting);
    if (range() && range()->text) settings::durationStyle.watch(m_preferences, this, tell);
    connect(&m_gaps, &DesktopGaps::idleChanged, this, &PreferenceRowModel::changed);
    connect(&m_gaps, &DesktopGaps::autoModeChanged, this, &PreferenceRowModel::changed);
}

QString PreferenceRowModel::caption() const {
    if (m_entry.gapReplacesCaption)
        if (QString gap = gapHere(); !gap.isEmpty()) return gap;
    const bool one = m_entry.captionOfOne && wholeValue() == 1;
    return worded(one ? m_entry.captionOfOne : m_entry.caption);
}

QString PreferenceRowModel::gap() const {
    return m_entry.gapReplacesCaption ? QString() : gapHere();
}

QString PreferenceRowModel::remedy() const {
    return m_entry.remedy ? (m_gaps.*m_entry.remedy)() : QString();
}

void PreferenceRowModel::applyRemedy() {
    if (m_entry.applyRemedy) (m_gaps.*m_entry.applyRemedy)();
}

QString PreferenceRowModel::gapHere() const {
    return m_entry.gap ? (m_gaps.*m_entry.gap)() : QString();
}

bool PreferenceRowModel::isOn() const {
    const auto* const setting = std::get_if<OnOff>(&m_entry.setting);
    return setting && setting->preference.read(m_preferences) != setting->isStoredInverted;
}

void PreferenceRowModel::setOn(bool on) {
    if (const auto* const setting = std::get_if<OnOff>(&m_entry.setting))
        setting->preference.write(m_preferences, on != setting->isStoredInverted);
}

double PreferenceRowModel::value() const {
    return range() ? range()->preference.read(m_preferences) / range()->storedPerUnit : 0;
}

void PreferenceRowModel::setValue(double value) {
    if (range()) store(std::round(value / range()->step) * range()->step);
}

void PreferenceRowModel::step(int steps) {
    if (range()) store(value() + steps * range()->step);
}

void PreferenceRowModel::store(double value) {
    range()->preference.write(m_preferences, std::clamp(value, range()->least, range()->most) *
                                                 range()->storedPerUnit);
}

QString PreferenceRowModel::valueText() const {
    if (!range() || !range()->text) return {};
    return range()->text(value(), settings::durationStyle.read(m_preferences));
}

QString PreferenceRowModel::note() const { return Words::tr(m_entry.note); }

QString PreferenceRowModel::lessName() const {
    return range() ? Words::tr(range()->lessName) : QString();
}

QString PreferenceRowModel::moreName() const {
    return range() ? Words::tr(range()->moreName) : QString();
}

int PreferenceRowModel::wholeValue() const {
    return std::max(static_cast<int>(std::lround(value())), 1);
}

QString PreferenceRowModel::worded(const char* source) const {
    // With a number a catalogue is asked for a plural form, which a text without one does not have.
    const bool counts = QByteArrayView(source).contains("%n");
    return counts ? Words::tr(source, nullptr, wholeValue()) : Words::tr(source);
}

} // namespace vantle
