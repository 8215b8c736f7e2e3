#include "surfaces/notes/LogView.h"

#include "surfaces/notes/NotesWorld.h"

#include <gtest/gtest.h>

namespace vantle {
namespace {

using State = LogView::State;

class LogViewTest : public testing::Test, protected tests::NotesWorld {
protected:
    using Operation = fakes::FaultyFileSystem::Operation;

    void edit(int number, const char* draft) {
        view->beginEdit(idOf(number));
        view->setDraft(QString::fromUtf8(draft));
        view->commitEdit();
    }
};

TEST_F(LogViewTest, WithoutAnyNoteItSaysSo) {
    open();
    EXPECT_EQ(view->state(), State::Empty);
    EXPECT_FALSE(view->showsFilters());
    EXPECT_EQ(view->footerText(), QString());
}

TEST_F(LogViewTest, RowsHoldWhatARowShows) {
    write({"  one\n"});
    open();
    EXPECT_EQ(view->state(), State::Listed);
    EXPECT_EQ(shown(), QStringList{QStringLiteral("one")});
    EXPECT_EQ(shown(NoteRows::TimeRole), QStringList{QStringLiteral("11:00\u202FAM")});
    EXPECT_EQ(shown(NoteRows::DayRole), QStringList{QStringLiteral("Sun, Feb 1")});
    EXPECT_EQ(shown(NoteRows::DurationRole), QStringList{QStringLiteral("30 min")});
    EXPECT_EQ(view->countText(), QStringLiteral("1 note"));
}

TEST_F(LogViewTest, SearchNarrowsTheListAndItsSums) {
    write({"alpha", "beta", "alphabet"});
    open();
    view->setQuery(QStringLiteral("ALPHA"));
    EXPECT_EQ(shown(), (QStringList{QStringLiteral("alphabet"), QStringLiteral("alpha")}));
    EXPECT_EQ(view->countText(), QStringLiteral("2 notes"));
    EXPECT_EQ(view->subtitleText(), QStringLiteral("Across 1 h of the work you filtered to."));
}

TEST_F(LogViewTest, NothingFitsUntilTheFiltersAreCleared) {
    write({"alpha"});
    open();
    view->setQuery(QStringLiteral("omega"));
    view->showSkill(QStringLiteral("building"));
    EXPECT_EQ(view->state(), State::NothingFits);
    EXPECT_TRUE(view->showsFilters());
    EXPECT_EQ(view->footerText(), QString());
    view->clearFilters();
    EXPECT_EQ(view->state(), State::Listed);
    EXPECT_EQ(view->query(), QString());
    EXPECT_TRUE(view->showsAll());
}

TEST_F(LogViewTest, ChipOfTheSkillThatIsShownIsTheSelectedOne) {
    write({"alpha"});
    open();
    const auto selected = [&] {
        return view->filters()->data(view->filters()->index(0), NoteFilters::SelectedRole).toBool();
    };
    EXPECT_FALSE(selected());
    view->showSkill(QStringLiteral("building"));
    EXPECT_TRUE(selected());
    EXPECT_FALSE(view->showsAll());
    view->showAll();
    EXPECT_FALSE(selected());
}

TEST_F(LogViewTest, CopiedNoteSaysSoForAMoment) {
    write({" alpha "});
    open();
    view->copyNote(idOf(1));
    EXPECT_EQ(clipboard, QStringLiteral("alpha"));
    time.advance(1.3);
    EXPECT_EQ(view->copiedId(), idOf(1));
    time.advance(0.2);
    EXPECT_TRUE(view->copiedId().isEmpty());
}

TEST_F(LogViewTest, EditIsSavedAndListed) {
    write({"alpha", "beta"});
    open();
    view->beginEdit(idOf(1));
    EXPECT_EQ(view->editingId(), idOf(1));
    EXPECT_EQ(view->draft(), QStringLiteral("alpha"));
    view->setDraft(QStringLiteral("  gamma "));
    view->commitEdit();
    EXPECT_TRUE(view->editingId().isEmpty());
    EXPECT_EQ(view->draft(), QString());
    EXPECT_EQ(shown(), (QStringList{QStringLiteral("beta"), QStringLiteral("gamma")}));
    EXPECT_EQ(stored(1), QStringLiteral("gamma"));
}

TEST_F(LogViewTest, SameTextWithMoreBlanksIsNotWritten) {
    write({"alpha"});
    open();
    files.forgetCalls();
    edit(1, "\n alpha  ");
    for (const auto& call : files.calls())
        EXPECT_NE(call.operation, Operation::Rename);
    EXPECT_TRUE(view->editingId().isEmpty());
}

TEST_F(LogViewTest, EmptiedNoteLeavesTheListAndTheLastOneLeavesItEmpty) {
    write({"alpha"});
    open();
    edit(1, "  ");
    EXPECT_EQ(stored(1), QString());
    EXPECT_EQ(view->state(), State::Empty);
}

TEST_F(LogViewTest, EscapeLeavesTheNoteAsItWas) {
    write({"alpha"});
    open();
    view->beginEdit(idOf(1));
    view->setDraft(QStringLiteral("beta"));
    view->cancelEdit();
    EXPECT_TRUE(view->editingId().isEmpty());
    EXPECT_EQ(view->draft(), QString());
    EXPECT_EQ(stored(1), QStringLiteral("alpha"));
}

TEST_F(LogViewTest, FailedWriteKeepsTheOldNoteAndSaysWhy) {
    write({"alpha"});
    open();
    files.fail(Operation::Rename, QStringLiteral("sessions.jsonl"), 28);
    edit(1, "beta");
    EXPECT_EQ(shown(), QStringList{QStringLiteral("alpha")});
    EXPECT_EQ(view->failure(), tracker.storageError().value_or(QString()));
    EXPECT_FALSE(view->failure().isEmpty());
    files.healAll();
    edit(1, "beta");
    EXPECT_EQ(shown(), QStringList{QStringLiteral("beta")});
    EXPECT_EQ(view->failure(), QString());
}

TEST_F(LogViewTest, SessionThatEndsAppearsWithoutDisturbingAnEdit) {
    write({"alpha", "beta"});
    open();
    view->beginEdit(idOf(1));
    view->setDraft(QStringLiteral("half typed"));
    int resets = 0;
    int inserted = 0;
    QObject::connect(view->rows(), &QAbstractItemModel::modelReset, [&] { ++resets; });
    QObject::connect(
        view->rows(), &QAbstractItemModel::rowsInserted,
        [&](const QModelIndex&, int first, int last) { inserted += last - first + 1; });
    write({"alpha", "beta", "fresh"});
    Q_EMIT notifications.HFSessionsChanged();
    EXPECT_EQ(shown(), (QStringList{QStringLiteral("fresh"), QStringLiteral("beta"),
                                    QStringLiteral("alpha")}));
    EXPECT_EQ(resets, 0);
    EXPECT_EQ(inserted, 1);
    EXPECT_EQ(view->editingId(), idOf(1));
    EXPECT_EQ(view->draft(), QStringLiteral("half typed"));
}

TEST_F(LogViewTest, EditOfASessionThatIsErasedEnds) {
    write({"alpha"});
    open();
    view->beginEdit(idOf(1));
    put("");
    Q_EMIT notifications.HFSessionsChanged();
    EXPECT_TRUE(view->editingId().isEmpty());
    EXPECT_EQ(view->state(), State::Empty);
}

TEST_F(LogViewTest, AtMidnightTodayBecomesYesterday) {
    Session session = samples::session();
    session.startedAt = samples::at("2026-03-01T09:00:00Z");
    session.endedAt = session.startedAt + Seconds(1800);
    put(samples::line(session));
    open();
    EXPECT_EQ(shown(NoteRows::DayRole), QStringList{QStringLiteral("Today")});
    time.advance(14 * 3600);
    EXPECT_EQ(shown(NoteRows::DayRole), QStringList{QStringLiteral("Yesterday")});
}

TEST_F(LogViewTest, RowIsSpokenAsItStands) {
    write({"100%1 of %2 done"});
    open();
    EXPECT_EQ(shown(NoteRows::SpokenRole),
              QStringList{shown(NoteRows::DayRole)[0] +
                          QStringLiteral(", 100%1 of %2 done, 11:00\u202FAM, Build, 30 min")});
    Session manual = samples::session();
    manual.note = QStringLiteral("by hand");
    manual.source = sourceManual();
    put(samples::line(manual));
    open();
    EXPECT_TRUE(shown(NoteRows::SpokenRole)[0].endsWith(QStringLiteral(", 30 min, Manual")));
}

TEST_F(LogViewTest, RowThatIsEditedKeepsItsViewThroughASearch) {
    write({"alpha", "beta", "alphabet", "alpha two"});
    open();
    view->beginEdit(idOf(3));
    const QPersistentModelIndex edited = view->rows()->index(1);
    view->setQuery(QStringLiteral("alpha"));
    EXPECT_EQ(shown(), (QStringList{QStringLiteral("alpha two"), QStringLiteral("alphabet"),
                                    QStringLiteral("alpha")}));
    EXPECT_TRUE(edited.isValid());
    EXPECT_EQ(edited.row(), 1);
    view->setQuery(QStringLiteral("alphabet"));
    EXPECT_EQ(edited.row(), 0);
    view->clearFilters();
    EXPECT_EQ(edited.row(), 1);
    EXPECT_EQ(shown().size(), 4);
    view->setQuery(QStringLiteral("beta x"));
    EXPECT_FALSE(edited.isValid());
    EXPECT_TRUE(shown().isEmpty());
}

TEST_F(LogViewTest, RenamedModeIsFollowedWhileTheWindowIsOpen) {
    write({"alpha"});
    open();
    const Skill renamed = skills.display(QStringLiteral("building"));
    ASSERT_EQ(shown(NoteRows::SkillNameRole), QStringList{renamed.name});
    skills.update(renamed.id, QStringLiteral("Drafts"), renamed.hexRGB);
    EXPECT_EQ(shown(NoteRows::SkillNameRole), QStringList{QStringLiteral("Drafts")});
    const QModelIndex chip = view->filters()->index(0);
    EXPECT_EQ(view->filters()->data(chip, NoteFilters::NameRole).toString(),
              QStringLiteral("Drafts"));
}

} // namespace
} // namespace vantle
