// The panel by pointer and keys.
#include "launch/Catalogues.h"
#include "support/ReadElements.h"
#include "support/ShownView.h"
#include "support/Text.h"
#include "surfaces/commandcenter/CommandCenterWorld.h"

namespace vantle::tests {
namespace {

class CommandCenterViewTest : public testing::Test, protected CommandCenterWorld {
protected:
    void show() {
        m_shown.emplace().show("CommandCenter/CommandCenterView",
                               {{text("model"), QVariant::fromValue(content.get())},
                                {text("composited"), true},
                                {text("up"), true}});
    }
    void click(const QString& name, Qt::MouseButton button = Qt::LeftButton) {
        m_shown->click(name, button);
        world.settle();
        m_shown->settle();
    }
    [[nodiscard]] QString nameOf(int row) const {
        return mode(row, SkillListModel::Name).toString();
    }
    [[nodiscard]] QStringList names() const {
        QStringList all;
        for (int row = 0; row < content->modes()->rowCount(); ++row)
            all << nameOf(row);
        return all;
    }

    std::optional<ShownView> m_shown;
};

TEST_F(CommandCenterViewTest, ChipThatIsClickedIsTheModeOfTheButton) {
    show();
    click(nameOf(1));
    EXPECT_TRUE(mode(1, SkillListModel::Selected).toBool());
    EXPECT_TRUE(m_shown->shows(content->primaryText()));
    EXPECT_EQ(content->primaryText(), text("Enter Design Mode"));
}

TEST_F(CommandCenterViewTest, ClickOnTheButtonStartsAndStopsTheSession) {
    show();
    click(content->primaryText());
    EXPECT_TRUE(world.hasMarker());
    world.time.advance(60);
    m_shown->settle();
    click(content->primaryText());
    EXPECT_FALSE(world.hasMarker());
}

TEST_F(CommandCenterViewTest, DeleteOnAFocusedChipDeletesNothing) {
    show();
    const QStringList before = names();
    const int last = static_cast<int>(before.size()) - 1;
    ASSERT_TRUE(mode(last, SkillListModel::Deletable).toBool());
    for (int stops = 0; stops < 6 && m_shown->keyboardOwner() != m_shown->control(nameOf(0));
         ++stops)
        m_shown->press(Qt::Key_Tab);
    for (int steps = 0; steps < last; ++steps)
        m_shown->press(Qt::Key_Right);
    ASSERT_EQ(m_shown->keyboardOwner(), m_shown->control(nameOf(last)));
    m_shown->press(Qt::Key_Delete);
    m_shown->press(Qt::Key_Backspace);
    world.settle();
    EXPECT_EQ(names(), before);
}

TEST_F(CommandCenterViewTest, ModeIsDeletedByTheMenuOfItsChip) {
    show();
    QStringList left = names();
    const QString last = left.takeLast();
    click(last, Qt::RightButton);
    click(text("Delete %1").arg(last));
    EXPECT_EQ(names(), left);
}

TEST_F(CommandCenterViewTest, ColoursAreOneStopOfTheTabKeyThatStartsAtTheChosenOne) {
    show();
    click(nameOf(2), Qt::RightButton);
    click(text("Change color…"));
    const QString chosen = content->editor()->colorNames().at(content->editor()->colorIndex());
    m_shown->press(Qt::Key_Tab);
    EXPECT_EQ(m_shown->keyboardOwner(), m_shown->control(chosen));
    m_shown->press(Qt::Key_Tab);
    EXPECT_EQ(m_shown->keyboardOwner(), m_shown->control(text("Cancel")));
    m_shown->press(Qt::Key_Backtab);
    m_shown->press(Qt::Key_Home);
    EXPECT_EQ(m_shown->keyboardOwner(), m_shown->control(text("Red")));
    EXPECT_EQ(content->editor()->colorIndex(), 0);
    EXPECT_EQ(readElement(m_shown->window(), text("Red")).description,
              text("Color FF375F, selected"));
}

TEST_F(CommandCenterViewTest, KeysAreToldInWordsThatTheKeyboardHas) {
    show();
    EXPECT_EQ(readElement(m_shown->window(), text("Hours")).description, text("Ctrl+D"));
    EXPECT_EQ(readElement(m_shown->window(), text("Notes")).description, QString());
    EXPECT_EQ(readElement(m_shown->window(), text("Quit")).description,
              text("Quit Vantle (Ctrl+Q)"));
    for (const ReadElement& one : readElements(m_shown->window())) {
        EXPECT_FALSE(one.name.contains(u'⌘')) << one.name.toStdString();
        EXPECT_FALSE(one.description.contains(u'⌘')) << one.description.toStdString();
    }
}

TEST_F(CommandCenterViewTest, KeysThatAreShownOpenTheirWindows) {
    const Catalogues catalogues({});
    show();
    int tried = 0;
    for (const QString& title : content->doors()) {
        const QString keys = m_shown->control(title)->property("shortcut").toString();
        if (keys.isEmpty()) continue;
        const QKeyCombination pressed = QKeySequence(keys)[0];
        ASSERT_EQ(pressed.keyboardModifiers(), Qt::ControlModifier) << keys.toStdString();
        opened.clear();
        m_shown->press(pressed.key(), pressed.keyboardModifiers());
        EXPECT_EQ(opened.size(), 1) << keys.toStdString();
        ++tried;
    }
    EXPECT_EQ(m_shown->cutTexts(), QStringList());
    EXPECT_EQ(tried, 1);
    EXPECT_TRUE(m_shown->shows(text("Ctrl+Q")));
    m_shown->press(Qt::Key_Q, Qt::ControlModifier);
    EXPECT_EQ(calls, QStringList{text("quit")});
    EXPECT_TRUE(m_shown->shows(text("Alt+Super+B")));
    const QQuickItem* const signs =
        shownItem(m_shown->window().contentItem(), [](const QQuickItem& item) {
            return item.property("text").toString().contains(u'⌘');
        });
    EXPECT_EQ(signs, nullptr);
}

TEST_F(CommandCenterViewTest, KeyboardGoesBackToTheChipWhoseEditorCloses) {
    show();
    click(nameOf(2), Qt::RightButton);
    click(text("Change color…"));
    click(text("Cancel"));
    EXPECT_EQ(m_shown->keyboardOwner(), m_shown->control(nameOf(2)));
    click(text("New Mode"));
    click(text("Cancel"));
    EXPECT_EQ(m_shown->keyboardOwner(), m_shown->control(text("New Mode")));
}

TEST_F(CommandCenterViewTest, EditorSaysWhetherAModeIsNewOrChanged) {
    show();
    click(text("New Mode"));
    EXPECT_TRUE(m_shown->shows(text("Name your mode")));
    EXPECT_TRUE(m_shown->shows(text("Choose a short name you will recognize at a glance.")));
    EXPECT_TRUE(m_shown->shows(text("0/20")));
    EXPECT_NE(m_shown->field(text("New mode name")), nullptr);
    ASSERT_NE(m_shown->control(text("Add mode")), nullptr);
    EXPECT_FALSE(m_shown->control(text("Add mode"))->isEnabled());
    click(text("Cancel"));
    click(nameOf(1), Qt::RightButton);
    click(text("Change color…"));
    EXPECT_TRUE(m_shown->shows(text("Rename mode")));
    EXPECT_NE(m_shown->field(text("Mode name")), nullptr);
    ASSERT_NE(m_shown->control(text("Save")), nullptr);
    EXPECT_TRUE(m_shown->control(text("Save"))->isEnabled());
}

TEST_F(CommandCenterViewTest, NameIsCutWhereItIsTypedAndTheCaretStays) {
    show();
    click(text("New Mode"));
    m_shown->type(text("abcdefghijklmnopqrstu"));
    EXPECT_EQ(content->editor()->name(), text("abcdefghijklmnopqrst"));
    m_shown->press(Qt::Key_Home);
    m_shown->press(Qt::Key_Delete);
    m_shown->type(text("z"));
    EXPECT_EQ(content->editor()->name(), text("zbcdefghijklmnopqrst"));
    EXPECT_TRUE(m_shown->shows(text("20/20")));
    click(text("Cancel"));
    click(text("New Mode"));
    EXPECT_EQ(m_shown->field(text("New mode name"))->property("text"), QString());
}

TEST_F(CommandCenterViewTest, MenuOfAChipOpensTheEditorForItsColour) {
    show();
    click(nameOf(1), Qt::RightButton);
    click(text("Change color…"));
    EXPECT_TRUE(content->editor()->isShown());
    m_shown->press(Qt::Key_A, Qt::ControlModifier);
    m_shown->type(text("Drafts"));
    m_shown->press(Qt::Key_Return);
    EXPECT_EQ(nameOf(1), text("Drafts"));
}

TEST_F(CommandCenterViewTest, LongNameAndTheTimeBehindItTakeASecondLine) {
    const QString longName = text("Wide Workshop Mowing");
    const Skill first = world.model->skills().front();
    world.model->updateSkill(first.id, longName, first.hexRGB);
    show();
    click(content->primaryText());
    world.time.advance(3600 + 59 * 60);
    m_shown->settle();
    for (const bool paused : {false, true}) {
        if (paused) world.model->tracker().pause(world.time.now());
        m_shown->settle();
        EXPECT_TRUE(content->title().contains(longName));
        EXPECT_TRUE(content->title().endsWith(text(" · 1 h 59 min")));
        EXPECT_TRUE(m_shown->shows(content->title()));
        EXPECT_EQ(m_shown->cutTexts(), QStringList());
    }
}

TEST_F(CommandCenterViewTest, QuestionOfACardIsAnsweredByKeys) {
    QStringList given;
    const auto give = [&](const char* answer) {
        return [this, &given, answer] {
            given << text(answer);
            questions.close(this);
        };
    };
    questions.ask(this, {text("Keep 25 min of Build?"),
                         {{text("Keep"), text("Saves it"), give("keep")},
                          {text("Discard"), {}, give("discard")}}});
    show();
    EXPECT_TRUE(m_shown->shows(text("Keep 25 min of Build?")));
    QQuickItem* const enter = m_shown->control(content->primaryText());
    EXPECT_EQ(m_shown->keyboardOwner(), enter);
    m_shown->press(Qt::Key_Backtab);
    m_shown->press(Qt::Key_Backtab);
    ASSERT_EQ(m_shown->keyboardOwner(), m_shown->control(text("Keep")));
    m_shown->press(Qt::Key_Return);
    m_shown->settle();
    EXPECT_EQ(given, QStringList(text("keep")));
    EXPECT_EQ(m_shown->control(text("Keep")), nullptr);
    EXPECT_EQ(m_shown->keyboardOwner(), enter) << "the row must not take the keyboard along";
}

TEST_F(CommandCenterViewTest, PanelGoesBeforeACardTakesTheKeyboard) {
    questions.ask(this, {text("Last session"),
                         {{text("Write a note"), {}, [this] { calls << text("card"); }, true}}});
    show();
    calls.clear();
    click(text("Write a note"));
    EXPECT_EQ(calls, QStringList({text("hide"), text("card")}));
}

} // namespace
} // namespace vantle::tests
