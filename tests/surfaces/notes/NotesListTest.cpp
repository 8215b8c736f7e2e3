// The notes window by pointer and keys.
#include "support/Await.h"
#include "support/ShownView.h"
#include "support/Text.h"
#include "surfaces/notes/NotesWorld.h"

#include <QAccessible>

#include <algorithm>

namespace vantle {
namespace {

using tests::text;

class NotesListTest : public testing::Test, protected tests::NotesWorld {
protected:
    void show(const std::vector<const char*>& notes) {
        write(notes);
        open();
        m_shown.emplace().show("Notes/NotesLogView",
                               {{text("model"), QVariant::fromValue(&*view)}});
    }
    /// The texts that are cut or stand out of the window, but for the names of modes.
    [[nodiscard]] QStringList cut() {
        QStringList words = m_shown->cutTexts();
        words.removeIf([this](const QString& one) { return m_shown->control(one) != nullptr; });
        return words;
    }
    /// The row that shows the note, or edits it.
    [[nodiscard]] QQuickItem* row(const char* note) {
        return tests::shownItem(m_shown->window().contentItem(), [&](const QQuickItem& item) {
            return item.property("note").toString() == text(note);
        });
    }
    /// Rests the pointer on the note and presses its pencil.
    void clickPencil(const char* note) {
        ASSERT_NE(row(note), nullptr) << note;
        m_shown->bringIntoSight(*row(note));
        m_shown->moveTo(m_shown->frameOf(*row(note)).center());
        QQuickItem* const pencil = tests::shownItem(row(note), [](const QQuickItem& item) {
            return item.property("name").toString() == text("Edit this note");
        });
        m_shown->click(pencil);
    }
    /// What of the list is read out, in that order.
    [[nodiscard]] std::vector<QAccessibleInterface*> partsReadOut() {
        QQuickItem* const list =
            tests::shownItem(m_shown->window().contentItem(), [](const QQuickItem& item) {
                return item.inherits("QQuickListView");
            });
        QAccessibleInterface* const read = QAccessible::queryAccessibleInterface(list);
        std::vector<QAccessibleInterface*> parts;
        for (int place = 0; read && place < read->childCount(); ++place)
            if (QAccessibleInterface* const part = read->child(place);
                part && !part->state().invisible)
                parts.push_back(part);
        return parts;
    }
    [[nodiscard]] QStringList readOut() {
        QStringList names;
        for (const QAccessibleInterface* part : partsReadOut())
            names << part->text(QAccessible::Name);
        return names;
    }
    [[nodiscard]] std::vector<QRectF> framesReadOut() {
        std::vector<QRectF> frames;
        for (const QAccessibleInterface* part : partsReadOut())
            frames.emplace_back(part->rect());
        return frames;
    }
    void clickSearch() { m_shown->click(m_shown->field(text("Search notes"))); }
    [[nodiscard]] QString typedInto(const char* field) {
        QQuickItem* const item = m_shown->field(text(field));
        return item ? item->property("text").toString() : text("no such field");
    }
    [[nodiscard]] bool hasKeyboard(const char* field) {
        QQuickItem* const item = m_shown->field(text(field));
        return item && item->property("focused").toBool();
    }

    std::optional<tests::ShownView> m_shown;
};

TEST_F(NotesListTest, PencilOpensTheNoteWithTheCaretAtItsEndAndReturnSavesIt) {
    show({"alpha", "beta"});
    clickPencil("alpha");
    EXPECT_TRUE(hasKeyboard("Note"));
    m_shown->type(text(" one"));
    EXPECT_EQ(typedInto("Note"), text("alpha one"));
    m_shown->press(Qt::Key_Return);
    EXPECT_EQ(stored(1), text("alpha one"));
    EXPECT_EQ(typedInto("Note"), text("no such field"));
}

TEST_F(NotesListTest, ReturnOnARowEditsItAndEscapeLeadsBackToTheRow) {
    show({"alpha", "beta"});
    for (int stops = 0; stops < 12 && m_shown->keyboardOwner() != row("beta"); ++stops)
        m_shown->press(Qt::Key_Tab);
    ASSERT_EQ(m_shown->keyboardOwner(), row("beta"));
    m_shown->press(Qt::Key_Down);
    EXPECT_EQ(m_shown->keyboardOwner(), row("alpha"));
    m_shown->press(Qt::Key_Return);
    m_shown->type(text("bet"));
    m_shown->press(Qt::Key_Escape);
    EXPECT_EQ(m_shown->keyboardOwner(), row("alpha"));
    EXPECT_EQ(stored(1), text("alpha"));
}

TEST_F(NotesListTest, EnterOfTheKeypadEditsAndSavesAsReturnDoes) {
    show({"alpha"});
    for (int stops = 0; stops < 12 && m_shown->keyboardOwner() != row("alpha"); ++stops)
        m_shown->press(Qt::Key_Tab);
    m_shown->press(Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_TRUE(hasKeyboard("Note"));
    m_shown->type(text("s"));
    m_shown->press(Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(stored(1), text("alphas"));
}

TEST_F(NotesListTest, EveryChipOfTheFilterCanBeCheckedAndOneIs) {
    show({"alpha"});
    const auto state = [this](const QString& name) {
        QAccessibleInterface* const chip =
            QAccessible::queryAccessibleInterface(m_shown->control(name));
        EXPECT_EQ(chip->role(), QAccessible::RadioButton) << name.toStdString();
        return chip->state();
    };
    const QString skill = skills.display(text("building")).name;
    for (const QString& name : {text("All"), skill}) {
        EXPECT_TRUE(state(name).checkable) << name.toStdString();
        EXPECT_EQ(state(name).checked, name == text("All")) << name.toStdString();
    }
    m_shown->click(skill);
    for (const QString& name : {text("All"), skill}) {
        EXPECT_TRUE(state(name).checkable) << name.toStdString();
        EXPECT_EQ(state(name).checked, name == skill) << name.toStdString();
    }
}

TEST_F(NotesListTest, RowIsReadOutAsItStands) {
    show({"100%1 of %2 done"});
    QAccessibleInterface* const read =
        QAccessible::queryAccessibleInterface(row("100%1 of %2 done"));
    ASSERT_NE(read, nullptr);
    EXPECT_EQ(read->text(QAccessible::Name), shown(NoteRows::SpokenRole)[0]);
    EXPECT_TRUE(read->text(QAccessible::Name).contains(text(", 100%1 of %2 done, ")));
}

TEST_F(NotesListTest, DayIsReadOutWithItsFirstNoteAndNotAfterIt) {
    QByteArray lines;
    for (const int day : {0, 1, 2}) {
        Session session = samples::session(day + 1);
        session.note = text(day == 0 ? "old" : day == 1 ? "first" : "second");
        const Seconds later(day * 24 * 3600.0 - (day == 2 ? 23 * 3600.0 : 0.0));
        session.startedAt = session.startedAt + later;
        session.endedAt = session.endedAt + later;
        lines += samples::line(session);
    }
    put(lines);
    open();
    m_shown.emplace().show("Notes/NotesLogView", {{text("model"), QVariant::fromValue(&*view)}});
    const QStringList notes = shown(NoteRows::NoteRole);
    const QStringList days = shown(NoteRows::DayRole);
    ASSERT_EQ(notes, (QStringList{text("second"), text("first"), text("old")}));
    ASSERT_EQ(days[0], days[1]);
    ASSERT_NE(days[1], days[2]);
    const auto begins = [](const QStringList& names, const QStringList& expected) {
        ASSERT_EQ(names.size(), expected.size()) << names.join(text("|")).toStdString();
        for (int place = 0; place < names.size(); ++place)
            EXPECT_TRUE(names[place].startsWith(expected[place])) << names[place].toStdString();
    };
    begins(readOut(), {days[0] + text(", second, "), text("first, "), days[2] + text(", old, ")});

    // The row that is edited keeps its view, and becomes the first of its day.
    clickPencil("first");
    clickSearch();
    m_shown->type(text("first"));
    begins(readOut(), {days[0] + text(", first, ")});
}

TEST_F(NotesListTest, RowsAreReadOutFromTheTopAfterASearchAndAScroll) {
    std::vector<const char*> notes(40, "one of many");
    notes[3] = "fourth";
    notes[5] = "sixth";
    show(notes);
    // Rows beside what is seen come when there is time for them.
    const auto inOrder = [this](const char* when) {
        std::vector<double> places;
        const bool sorted = tests::await([&] {
            m_shown->settle();
            places.clear();
            for (const QRectF& frame : framesReadOut())
                places.push_back(frame.top());
            return places.size() > 1 && std::ranges::is_sorted(places);
        });
        EXPECT_TRUE(sorted) << when << testing::PrintToString(places);
    };
    inOrder("at first");
    m_shown->scroll(*row("one of many"), 900);
    inOrder("scrolled down");
    m_shown->scroll(*row("one of many"), -500);
    inOrder("scrolled up");
    clickSearch();
    m_shown->type(text("th"));
    inOrder("searched");
    m_shown->press(Qt::Key_Escape);
    inOrder("all again");
}

TEST_F(NotesListTest, NarrowWindowCutsNothingButTheNameOfAMode) {
    const QString longest = text("WWWWWWWWWWWWWWWWWWWW");
    Session session = samples::session();
    session.note = text("A note of some words that take more than one line here");
    session.source = sourceManual();
    session.activeSeconds = 2 * 3600 + 5 * 60;
    session.endedAt = session.startedAt + Seconds(3 * 3600.0);
    put(samples::line(session));
    open();
    const Skill mode = skills.display(text("building"));
    skills.update(mode.id, longest, mode.hexRGB);
    m_shown.emplace().show("Notes/NotesLogView", {{text("model"), QVariant::fromValue(&*view)}},
                           {380, 620});
    EXPECT_EQ(cut(), QStringList());
    EXPECT_TRUE(m_shown->shows(text("Manual")));
    EXPECT_TRUE(m_shown->shows(text("2 h 5 min")));
    m_shown->click(m_shown->field(text("Search notes")));
    m_shown->type(text("some words"));
    EXPECT_TRUE(m_shown->shows(text("Across 2 h 5 min of the work you filtered to.")));
    EXPECT_EQ(cut(), QStringList());
    m_shown->window().resize(520, 620);
    m_shown->settle();
    EXPECT_EQ(cut(), QStringList());
}

TEST_F(NotesListTest, CopyPutsTheNoteOnTheClipboardAndSaysSo) {
    show({"alpha", "beta"});
    m_shown->moveTo(m_shown->frameOf(*row("alpha")).center());
    m_shown->click(tests::shownItem(row("alpha"), [](const QQuickItem& item) {
        return item.property("name").toString() == text("Copy this note");
    }));
    EXPECT_EQ(clipboard, text("alpha"));
    EXPECT_TRUE(m_shown->shows(text("Copied")));
    EXPECT_TRUE(m_shown->announced().contains(text("Copied")));
}

TEST_F(NotesListTest, SearchKeepsTheKeyboardWhileANoteIsEdited) {
    show({"alpha", "beta", "alphabet"});
    clickPencil("alpha");
    m_shown->type(text(" draft"));
    clickSearch();
    m_shown->type(text("alph"));
    EXPECT_TRUE(hasKeyboard("Search notes"));
    EXPECT_EQ(typedInto("Search notes"), text("alph"));
    EXPECT_EQ(typedInto("Note"), text("alpha draft"));
    m_shown->press(Qt::Key_Return);
    EXPECT_EQ(typedInto("Note"), text("alpha draft")) << "the draft stays in its note";
    EXPECT_EQ(view->editingId(), idOf(1));
}

TEST_F(NotesListTest, DraftOfANoteThatTheSearchHidesComesBackWithIt) {
    show({"alpha", "beta", "gamma"});
    clickPencil("gamma");
    m_shown->type(text(" draft"));
    clickSearch();
    m_shown->type(text("beta"));
    EXPECT_TRUE(hasKeyboard("Search notes"));
    EXPECT_EQ(typedInto("Note"), text("no such field"));
    m_shown->press(Qt::Key_Return);
    EXPECT_EQ(view->editingId(), idOf(3)) << "no other note is opened";
    m_shown->press(Qt::Key_Escape);
    EXPECT_EQ(typedInto("Note"), text("gamma draft"));
    m_shown->click(m_shown->field(text("Note")));
    m_shown->press(Qt::Key_Return);
    EXPECT_EQ(stored(3), text("gamma draft"));
}

TEST_F(NotesListTest, ChipUnderThePointerLeavesTheCaretInTheDraft) {
    show({"alpha", "beta"});
    clickPencil("alpha");
    m_shown->type(text(" one"));
    m_shown->press(Qt::Key_Left);
    m_shown->click(skills.display(text("building")).name);
    m_shown->type(text("x"));
    EXPECT_EQ(typedInto("Note"), text("alpha onxe"));
}

TEST_F(NotesListTest, DraftThatIsScrolledAwayIsTypedOnAndStillThere) {
    std::vector<const char*> notes(60, "one of many");
    notes.back() = "newest";
    show(notes);
    clickPencil("newest");
    m_shown->type(text(" draft"));
    const QQuickItem& first = *row("newest");
    m_shown->scroll(first, 3000);
    EXPECT_LT(m_shown->frameOf(first).bottom(), 0);
    m_shown->type(text(" goes on"));
    m_shown->scroll(first, -3000);
    EXPECT_EQ(typedInto("Note"), text("newest draft goes on"));
    m_shown->press(Qt::Key_Return);
    EXPECT_EQ(stored(60), text("newest draft goes on"));
}

} // namespace
} // namespace vantle
