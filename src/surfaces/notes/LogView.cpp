#include "surfaces/notes/LogView.h"

#include "base/Clock.h"
#include "base/LocalTime.h"
#include "base/Text.h"
#include "tracking/NotificationCenter.h"
#include "tracking/Settings.h"
#include "tracking/SkillList.h"
#include "tracking/TrackerCore.h"

#include <algorithm>
#include <utility>

namespace vantle {

LogView::LogView(Environment environment) : m_env(std::move(environment)) {
    connect(&m_env.notifications, &NotificationCenter::HFSessionsChanged, this, &LogView::reload);
    connect(&m_env.skills, &SkillList::changed, this, &LogView::reload);
    reload();
}

LogView::~LogView() = default;

void LogView::reload() {
    m_rows.update(content(noteslog::read(m_env.tracker.allSessions(), [this](const QString& id) {
        return m_env.skills.display(id);
    })));
    m_filters.setSkills(m_rows.content().log.skills);
    if (!m_editingId.isEmpty() && !entry(m_editingId)) cancelEdit();

    const NoteRows::Content& shown = m_rows.content();
    m_dayEnds = m_env.scheduler.scheduleOnce(
        LocalTime(shown.calendar).endOfDay(shown.now) - shown.now, [this] { reload(); });
    Q_EMIT shownChanged();
}

NoteRows::Content LogView::content(NotesLog log) const {
    noteslog::Places visible = noteslog::visible(log, m_filter);
    return {std::move(log),
            std::move(visible),
            m_env.clock.now(),
            m_env.calendar(),
            settings::durationStyle.read(m_env.preferences),
            m_filter};
}

void LogView::narrow(LogFilter filter) {
    m_filter = std::move(filter);
    m_filters.select(m_filter.skillId);
    m_rows.narrow(m_filter, QUuid::fromString(m_editingId));
    Q_EMIT filterChanged();
    Q_EMIT shownChanged();
}

void LogView::setQuery(const QString& query) {
    if (query != m_filter.query) narrow({query, m_filter.skillId});
}

void LogView::showSkill(const QString& skillId) { narrow({m_filter.query, skillId}); }
void LogView::showAll() { narrow({m_filter.query, std::nullopt}); }
void LogView::clearFilters() { narrow({}); }

LogView::State LogView::state() const {
    if (m_rows.content().log.entries.empty()) return State::Empty;
    return m_rows.content().visible.empty() ? State::NothingFits : State::Listed;
}

QString LogView::countText() const {
    const std::size_t count = m_rows.content().visible.size();
    return QString::number(count) + QLatin1Char(' ') + noteslog::countWord(count);
}

QString LogView::subtitleText() const {
    const NoteRows::Content& shown = m_rows.content();
    return noteslog::subtitleText(shown.log, shown.visible, m_filter.isFiltering(), shown.style);
}

QString LogView::footerText() const {
    const NoteRows::Content& shown = m_rows.content();
    return noteslog::footerText(shown.log, shown.visible, shown.style);
}

const LogEntry* LogView::entry(const QString& id) const {
    const auto& entries = m_rows.content().log.entries;
    const auto found = std::ranges::find(entries, QUuid::fromString(id), &LogEntry::id);
    return found == entries.end() ? nullptr : &*found;
}

void LogView::copyNote(const QString& id) {
    const LogEntry* const source = entry(id);
    if (!source) return;
    m_env.copy(source->note);
    setCopiedId(id);
    Q_EMIT copied();
    m_copiedEnds =
        m_env.scheduler.scheduleOnce(Seconds(copiedSeconds), [this] { setCopiedId(QString()); });
}

void LogView::setCopiedId(const QString& id) {
    m_copiedId = id;
    Q_EMIT copiedIdChanged();
}

void LogView::beginEdit(const QString& id) {
    const LogEntry* edited = entry(id);
    if (!edited) return;
    setDraft(edited->note);
    m_editingId = id;
    Q_EMIT editingChanged();
}

void LogView::setDraft(const QString& draft) {
    if (draft == m_draft) return;
    m_draft = draft;
    Q_EMIT draftChanged();
}

void LogView::commitEdit() {
    const LogEntry* edited = entry(m_editingId);
    if (!edited) return;
    const QString note = text::trimmed(m_draft);
    bool isSaved = true;
    if (note != edited->note) isSaved = m_env.tracker.updateNote(edited->id, note);
    setFailure(isSaved ? QString() : m_env.tracker.storageError().value_or(QString()));
    cancelEdit();
    reload();
}

void LogView::cancelEdit() {
    m_editingId.clear();
    setDraft({});
    Q_EMIT editingChanged();
}

void LogView::setFailure(const QString& failure) {
    if (failure == m_failure) return;
    m_failure = failure;
    Q_EMIT failureChanged();
}

} // namespace vantle
