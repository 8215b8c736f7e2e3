#include "surfaces/settings/SeenAppRows.h"

#include "base/Bidi.h"
#include "base/Words.h"

#include <QColor>

#include <algorithm>

namespace vantle {

namespace {

QString forgetLabel(const SeenAppRows::Row& row) {
    return (row.hasChoice ? Words::tr("Forget %1 and its category") : Words::tr("Forget %1"))
        .arg(bidi::isolated(row.name));
}

} // namespace

void SeenAppRows::setRows(const std::vector<Row>& rows) {
    removeAllBut(rows);
    for (std::size_t place = 0; place < rows.size(); ++place)
        bringTo(static_cast<int>(place), rows[place]);
}

void SeenAppRows::removeAllBut(const std::vector<Row>& rows) {
    for (int place = rowCount() - 1; place >= 0; --place) {
        const auto old = m_rows.begin() + place;
        if (std::ranges::find(rows, old->bundleId, &Row::bundleId) != rows.end()) continue;
        beginRemoveRows({}, place, place);
        m_rows.erase(old);
        endRemoveRows();
    }
}

/// The rows above `place` are already final.
void SeenAppRows::bringTo(int place, const Row& row) {
    const auto goal = m_rows.begin() + place;
    const auto found = std::ranges::find(goal, m_rows.end(), row.bundleId, &Row::bundleId);
    if (found == m_rows.end()) {
        beginInsertRows({}, place, place);
        m_rows.insert(goal, row);
        endInsertRows();
        return;
    }
    if (found != goal) {
        const int from = static_cast<int>(found - m_rows.begin());
        beginMoveRows({}, from, from, {}, place);
        std::rotate(goal, found, found + 1);
        endMoveRows();
    }
    if (*goal == row) return;
    *goal = row;
    Q_EMIT dataChanged(index(place), index(place));
}

int SeenAppRows::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant SeenAppRows::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
    const Row& row = m_rows[static_cast<std::size_t>(index.row())];
    switch (role) {
    case BundleIdRole:
        return row.bundleId;
    case NameRole:
        return row.name;
    case IsAutomaticRole:
        return row.isAutomatic;
    case ChoiceRole:
        return row.choice;
    case IsSkillRole:
        return row.hexRGB.has_value();
    case ColorRole:
        return QColor::fromRgb(row.hexRGB.value_or(0));
    case MenuLabelRole:
        return Words::tr("Skill for %1").arg(bidi::isolated(row.name));
    case ForgetLabelRole:
        return forgetLabel(row);
    default:
        return {};
    }
}

QHash<int, QByteArray> SeenAppRows::roleNames() const {
    return {{BundleIdRole, "bundleId"},       {NameRole, "name"},
            {IsAutomaticRole, "isAutomatic"}, {ChoiceRole, "choice"},
            {IsSkillRole, "isSkill"},         {ColorRole, "skillColor"},
            {MenuLabelRole, "menuLabel"},     {ForgetLabelRole, "forgetLabel"}};
}

} // namespace vantle
