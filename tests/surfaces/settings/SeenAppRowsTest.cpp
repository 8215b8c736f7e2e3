#include "surfaces/settings/SeenAppRows.h"

#include "support/QtPrinters.h"

#include <QPersistentModelIndex>

#include <gtest/gtest.h>

namespace vantle {
namespace {

SeenAppRows::Row app(const char* id, int choice = 0) {
    SeenAppRows::Row row;
    row.bundleId = QLatin1String(id);
    row.name = QLatin1String(id).toString().toUpper();
    row.choice = choice;
    return row;
}

QString ids(const SeenAppRows& rows) {
    QString all;
    for (int row = 0; row < rows.rowCount(); ++row)
        all += rows.data(rows.index(row), SeenAppRows::BundleIdRole).toString();
    return all;
}

TEST(SeenAppRows, FollowsAnyChangeOfTheList) {
    SeenAppRows rows;
    const std::vector<std::vector<SeenAppRows::Row>> lists = {
        {app("a"), app("b"), app("c")}, {app("c"), app("a"), app("b")},           {app("b")},
        {app("d"), app("b"), app("e")}, {app("e"), app("d"), app("f"), app("b")}, {}};
    for (const auto& list : lists) {
        QString wanted;
        for (const auto& row : list)
            wanted += row.bundleId;
        rows.setRows(list);
        EXPECT_EQ(ids(rows), wanted);
    }
}

TEST(SeenAppRows, ARowThatStaysIsTheSameRowWhereverItGoes) {
    SeenAppRows rows;
    rows.setRows({app("a"), app("b"), app("c")});
    const QPersistentModelIndex a = rows.index(0);
    const QPersistentModelIndex b = rows.index(1);
    rows.setRows({app("x"), app("c"), app("a")});
    EXPECT_EQ(a.row(), 2);
    EXPECT_FALSE(b.isValid());
}

TEST(SeenAppRows, OnlyTheRowThatChangedIsDrawnAgain) {
    SeenAppRows rows;
    rows.setRows({app("a"), app("b", 1)});
    std::vector<int> changed;
    QObject::connect(&rows, &SeenAppRows::dataChanged,
                     [&](const QModelIndex& first) { changed.push_back(first.row()); });
    rows.setRows({app("a"), app("b", 2)});
    EXPECT_EQ(changed, std::vector<int>{1});
    EXPECT_EQ(rows.data(rows.index(1), SeenAppRows::ChoiceRole).toInt(), 2);
}

TEST(SeenAppRows, NamesItsControlsAfterTheApplication) {
    SeenAppRows rows;
    SeenAppRows::Row chosen = app("mail");
    chosen.name = QStringLiteral("Mail %1");
    chosen.hasChoice = true;
    rows.setRows({chosen, app("draw")});
    const auto text = [&](int row, SeenAppRows::Role role) {
        return rows.data(rows.index(row), role).toString();
    };
    EXPECT_EQ(text(0, SeenAppRows::MenuLabelRole), QStringLiteral("Skill for Mail %1"));
    EXPECT_EQ(text(0, SeenAppRows::ForgetLabelRole),
              QStringLiteral("Forget Mail %1 and its category"));
    EXPECT_EQ(text(1, SeenAppRows::ForgetLabelRole), QStringLiteral("Forget DRAW"));
}

} // namespace
} // namespace vantle
