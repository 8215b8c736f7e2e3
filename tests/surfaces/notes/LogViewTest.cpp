#include "surfaces/notes/LogView.h"

#include "support/QtPrinters.h"
#include "tracking/TrackingWorld.h"

#include <gtest/gtest.h>

namespace vantle {
namespace {

using State = LogView::State;

class LogViewTest : public testing::Test, protected TrackingWorld {
protected:
    using Operation = fakes::FaultyFileSystem::Operation;

    /// A log with one noted session for each text, an hour apart, the last one newest.
    void write(const std::vector<const char*>& notes) {
        QByteArray lines;
        int number = 0;
        for (const char* note : notes) {
            Session session = samples::session(++number);
            session.note = QString::fromUtf8(note);
            lines += samples::line(session);
        }
        put(log, lines);
    }
    LogView& open() { return m_view.emplace(environment()); }
    [[nodiscard]] LogView::Environment environment() {
        return {tracker,
                skills,
                process.notifications,
                preferences,
                time,
                time,
                [] {
                    return Calendar{QStringLiteral("UTC"), 1, 1};
                },
                [this](const QString& text) { m_clipboard = text; }};
    }
    [[nodiscard]] QStringList shown(NoteRows::Role role = NoteRows::NoteRole) {
        QStringList texts;
        for (int row = 0; row < m_view->rows()->rowCount(); ++row)
            texts << m_view->rows()->data(m_view->rows()->index(row), role).toString();
        return texts;
    }
    [[nodiscard]] QString stored(int number) {
        for (const Session& session : tracker.allSessions())
            if (session.id == samples::id(number)) return session.note;
        return QStringLiteral("gone");
    }
    [[nodiscard]] static QString idOf(int number) { return samples::id(number).toString(); }
    void edit(int number, const char* draft) {
        m_view->beginEdit(idOf(number));
        m_view->setDraft(QString::fromUtf8(draft));
        m_view->commitEdit();
    }

    QString m_clipboard;
    std::optional<LogView> m_view;
};

TEST_F(LogViewTest, WithoutAnyNoteItSaysSo) {
    LogView& view = open();
    EXPECT_EQ(view.state(), State::Empty);
    EXPECT_FALSE(view.showsFilters());
    EXPECT_EQ(view.footerText(), QString());
}

TEST_F(LogViewTest, RowsHoldWhatARowShows) {
    write({"  one\n"});
    LogView& view = open();
    EXPECT_EQ(view.state(), State::Listed);
    EXPECT_EQ(shown(), QStringList{QStringLiteral("one")});
    EXPECT_EQ(shown(NoteRows::TimeRole), QStringList{QStringLiteral("11:00\u202FAM")});
    EXPECT_EQ(shown(NoteRows::DayRole), QStringList{QStringLiteral("Sun, Feb 1")});
    EXPECT_EQ(shown(NoteRows::DurationRole), QStringList{QStringLiteral("30 min")});
    EXPECT_EQ(view.countText(), QStringLiteral("1 note"));
}

TEST_F(LogViewTest, SearchNarrowsTheListAndItsSums) {
    write({"alpha", "beta", "alphabet"});
    LogView& view = open();
    view.setQuery(QStringLiteral("ALPHA"));
    EXPECT_EQ(shown(), (QStringList{QStringLiteral("alphabet"), QStringLiteral("alpha")}));
    EXPECT_EQ(view.countText(), QStringLiteral("2 notes"));
    EXPECT_EQ(view.subtitleText(), QStringLiteral("Across 1 h of the work you filtered to."));
}

TEST_F(LogViewTest, NothingFitsUntilTheFiltersAreCleared) {
    write({"alpha"});
    LogView& view = open();
    view.setQuery(QStringLiteral("omega"));
    view.showSkill(QStringLiteral("building"));
    EXPECT_EQ(view.state(), State::NothingFits);
    EXPECT_TRUE(view.showsFilters());
    EXPECT_EQ(view.footerText(), QString());
    view.clearFilters();
    EXPECT_EQ(view.state(), State::Listed);
    EXPECT_EQ(view.query(), QString());
    EXPECT_TRUE(view.showsAll());
}

TEST_F(LogViewTest, ChipOfTheSkillThatIsShownIsTheSelectedOne) {
    write({"alpha"});
    LogView& view = open();
    const auto selected = [&] {
        return view.filters()->data(view.filters()->index(0), NoteFilters::SelectedRole).toBool();
    };
    EXPECT_FALSE(selected());
    view.showSkill(QStringLiteral("building"));
    EXPECT_TRUE(selected());
    EXPECT_FALSE(view.showsAll());
    view.showAll();
    EXPECT_FALSE(selected());
}

TEST_F(LogViewTest, CopiedNoteSaysSoForAMoment) {
    write({" alpha "});
    LogView& view = open();
    view.copyNote(idOf(1));
    EXPECT_EQ(m_clipboard, QStringLiteral("alpha"));
    time.advance(1.3);
    EXPECT_EQ(view.copiedId(), idOf(1));
    time.advance(0.2);
    EXPECT_TRUE(view.copiedId().isEmpty());
}

TEST_F(LogViewTest, EditIsSavedAndListed) {
    write({"alpha", "beta"});
    LogView& view = open();
    view.beginEdit(idOf(1));
    EXPECT_EQ(view.editingId(), idOf(1));
    EXPECT_EQ(view.draft(), QStringLiteral("alpha"));
    view.setDraft(QStringLiteral("  gamma "));
    view.commitEdit();
    EXPECT_TRUE(view.editingId().isEmpty());
    EXPECT_EQ(view.draft(), QString());
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
    EXPECT_TRUE(m_view->editingId().isEmpty());
}

TEST_F(LogViewTest, EmptiedNoteLeavesTheListAndTheLastOneLeavesItEmpty) {
    write({"alpha"});
    open();
    edit(1, "  ");
    EXPECT_EQ(stored(1), QString());
    EXPECT_EQ(m_view->state(), State::Empty);
}

TEST_F(LogViewTest, EscapeLeavesTheNoteAsItWas) {
    write({"alpha"});
    LogView& view = open();
    view.beginEdit(idOf(1));
    view.setDraft(QStringLiteral("beta"));
    view.cancelEdit();
    EXPECT_TRUE(view.editingId().isEmpty());
    EXPECT_EQ(view.draft(), QString());
    EXPECT_EQ(stored(1), QStringLiteral("alpha"));
}

TEST_F(LogViewTest, FailedWriteKeepsTheOldNoteAndSaysWhy) {
    write({"alpha"});
    open();
    files.fail(Operation::Rename, QStringLiteral("sessions.jsonl"), 28);
    edit(1, "beta");
    EXPECT_EQ(shown(), QStringList{QStringLiteral("alpha")});
    EXPECT_EQ(m_view->failure(), tracker.storageError().value_or(QString()));
    EXPECT_FALSE(m_view->failure().isEmpty());
    files.healAll();
    edit(1, "beta");
    EXPECT_EQ(shown(), QStringList{QStringLiteral("beta")});
    EXPECT_EQ(m_view->failure(), QString());
}

TEST_F(LogViewTest, SessionThatEndsAppearsWithoutDisturbingAnEdit) {
    write({"alpha", "beta"});
    LogView& view = open();
    view.beginEdit(idOf(1));
    view.setDraft(QStringLiteral("half typed"));
    int resets = 0;
    int inserted = 0;
    QObject::connect(view.rows(), &QAbstractItemModel::modelReset, [&] { ++resets; });
    QObject::connect(
        view.rows(), &QAbstractItemModel::rowsInserted,
        [&](const QModelIndex&, int first, int last) { inserted += last - first + 1; });
    write({"alpha", "beta", "fresh"});
    Q_EMIT process.notifications.HFSessionsChanged();
    EXPECT_EQ(shown(), (QStringList{QStringLiteral("fresh"), QStringLiteral("beta"),
                                    QStringLiteral("alpha")}));
    EXPECT_EQ(resets, 0);
    EXPECT_EQ(inserted, 1);
    EXPECT_EQ(view.editingId(), idOf(1));
    EXPECT_EQ(view.draft(), QStringLiteral("half typed"));
}

TEST_F(LogViewTest, EditOfASessionThatIsErasedEnds) {
    write({"alpha"});
    LogView& view = open();
    view.beginEdit(idOf(1));
    put(log, "");
    Q_EMIT process.notifications.HFSessionsChanged();
    EXPECT_TRUE(view.editingId().isEmpty());
    EXPECT_EQ(view.state(), State::Empty);
}

TEST_F(LogViewTest, AtMidnightTodayBecomesYesterday) {
    Session session = samples::session();
    session.startedAt = samples::at("2026-03-01T09:00:00Z");
    session.endedAt = session.startedAt + Seconds(1800);
    put(log, samples::line(session));
    open();
    EXPECT_EQ(shown(NoteRows::DayRole), QStringList{QStringLiteral("Today")});
    time.advance(14 * 3600);
    EXPECT_EQ(shown(NoteRows::DayRole), QStringList{QStringLiteral("Yesterday")});
}

} // namespace
} // namespace vantle
