#include "surfaces/notes/NoteRows.h"

#include "base/Words.h"
#include "tracking/DashFormat.h"

#include <QColor>

#include <algorithm>
#include <utility>

namespace vantle {

namespace {

/// 10 PM: two digits in 12 and 24 hour clocks.
constexpr Seconds kWidestTime(22 * 3600.0);

} // namespace

NoteRows::NoteRows() : m_time(DateText::time(m_content.calendar)) {}

NoteRows::Lines NoteRows::linesOf(const Content& content) {
    Lines lines;
    lines.days = noteslog::days(content.log, content.visible, content.calendar);
    lines.rows.reserve(content.visible.size());
    for (std::size_t day = 0; day < lines.days.size(); ++day)
        for (const std::size_t place : lines.days[day].entries)
            lines.rows.push_back({place, day});
    return lines;
}

void NoteRows::adopt(Content content, Lines lines) {
    m_content = std::move(content);
    m_lines = std::move(lines);
    m_time = DateText::time(m_content.calendar);
    m_dayLabels = std::make_unique<DayLabels>(m_content.now, m_content.calendar);
    LocalTime wall(m_content.calendar);
    m_widestTime = m_time(wall.startOfDay(wall.at(m_content.now).day) + kWidestTime);
}

std::ptrdiff_t NoteRows::placeOf(const QUuid& session, const Lines& lines) const {
    const auto found = std::ranges::find_if(
        lines.rows, [&](const Row& row) { return entryOf(row).id == session; });
    return found - lines.rows.begin();
}

void NoteRows::removeRange(std::ptrdiff_t first, std::ptrdiff_t count) {
    if (count <= 0) return;
    beginRemoveRows({}, static_cast<int>(first), static_cast<int>(first + count) - 1);
    const auto begin = m_lines.rows.begin() + first;
    m_lines.rows.erase(begin, begin + count);
    endRemoveRows();
}

void NoteRows::insertRange(std::ptrdiff_t first, std::ptrdiff_t count, const Lines& lines,
                           std::ptrdiff_t upTo) {
    if (count > 0)
        beginInsertRows({}, static_cast<int>(first), static_cast<int>(first + count) - 1);
    m_lines.days = lines.days;
    m_lines.rows.assign(lines.rows.begin(), lines.rows.begin() + upTo);
    if (count > 0) endInsertRows();
}

void NoteRows::replaceRows(Lines lines) {
    removeRange(0, std::ssize(m_lines.rows));
    const int count = static_cast<int>(lines.rows.size());
    if (count > 0) beginInsertRows({}, 0, count - 1);
    m_lines = std::move(lines);
    if (count > 0) endInsertRows();
}

void NoteRows::narrow(const LogFilter& filter, const QUuid& kept) {
    m_content.visible =
        noteslog::visible(m_content.log, filter, m_content.filter, m_content.visible);
    m_content.filter = filter;
    Lines lines = linesOf(m_content);
    if (kept.isNull()) return replaceRows(std::move(lines));
    const std::ptrdiff_t count = std::ssize(lines.rows);
    const std::ptrdiff_t place = placeOf(kept, lines);
    const std::ptrdiff_t before = placeOf(kept, m_lines);
    // No reset: the view reuses its items for removed and inserted rows, which is much less work.
    if (place == count || before == std::ssize(m_lines.rows)) return replaceRows(std::move(lines));
    removeRange(before + 1, std::ssize(m_lines.rows) - before - 1);
    removeRange(0, before);
    insertRange(0, place, lines, place + 1);
    insertRange(place + 1, count - place - 1, lines, count);
    const QModelIndex stayed = index(static_cast<int>(place));
    Q_EMIT dataChanged(stayed, stayed, {SpokenRole}); // it may now be the first of its day
}

void NoteRows::update(Content content) {
    Lines lines = linesOf(content);
    const auto isSame = [&](const Row& old, const Row& fresh) {
        return entryOf(old).id == content.log.entries[fresh.place].id;
    };
    const auto& before = m_lines.rows;
    const auto& after = lines.rows;
    const auto head =
        std::mismatch(before.begin(), before.end(), after.begin(), after.end(), isSame);
    const auto tail =
        std::mismatch(before.rbegin(), std::make_reverse_iterator(head.first), after.rbegin(),
                      std::make_reverse_iterator(head.second), isSame);
    const int first = static_cast<int>(head.first - before.begin());
    const int removed = static_cast<int>(tail.first.base() - head.first);
    const int inserted = static_cast<int>(tail.second.base() - head.second);

    // Between the two steps the model has the old list without the removed rows.
    if (removed > 0) {
        beginRemoveRows({}, first, first + removed - 1);
        m_lines.rows.erase(head.first, tail.first.base());
        endRemoveRows();
    }
    if (inserted > 0) {
        beginInsertRows({}, first, first + inserted - 1);
        adopt(std::move(content), std::move(lines));
        endInsertRows();
    } else {
        adopt(std::move(content), std::move(lines));
    }
    // Rows that stay may have changed: an edited note, a new day.
    if (!m_lines.rows.empty()) Q_EMIT dataChanged(index(0), index(rowCount() - 1));
}

int NoteRows::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_lines.rows.size());
}

QVariant NoteRows::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
    const Row& row = m_lines.rows[static_cast<std::size_t>(index.row())];
    const LogEntry& entry = entryOf(row);
    const Skill& skill = m_content.log.skillOf(entry);
    switch (role) {
    case IdRole:
        return entry.id.toString();
    case NoteRole:
        return entry.note;
    case TimeRole:
        return m_time(entry.startedAt);
    case SkillNameRole:
        return skill.name;
    case SkillColorRole:
        return QColor::fromRgb(skill.hexRGB);
    case DurationRole:
        return dashformat::sessionDuration(entry.activeSeconds, m_content.style);
    case IsManualRole:
        return entry.isManual;
    case DayRole:
        return (*m_dayLabels)(m_lines.days[row.day].day);
    case SpokenRole:
        return spoken(static_cast<std::size_t>(index.row()));
    default:
        return {};
    }
}

QString NoteRows::spoken(std::size_t number) const {
    const Row& row = m_lines.rows[number];
    const LogEntry& entry = entryOf(row);
    QStringList parts{entry.note, m_time(entry.startedAt), m_content.log.skillOf(entry).name,
                      dashformat::sessionDuration(entry.activeSeconds, m_content.style)};
    if (entry.isManual) parts << Words::tr("Manual");
    if (number == 0 || m_lines.rows[number - 1].day != row.day)
        parts.prepend((*m_dayLabels)(m_lines.days[row.day].day));
    return parts.join(QStringLiteral(", "));
}

QHash<int, QByteArray> NoteRows::roleNames() const {
    return {{IdRole, "sessionId"},          {NoteRole, "note"},
            {TimeRole, "timeText"},         {SkillNameRole, "skillName"},
            {SkillColorRole, "skillColor"}, {DurationRole, "durationText"},
            {IsManualRole, "isManual"},     {DayRole, "dayText"},
            {SpokenRole, "spoken"}};
}

} // namespace vantle
