#include "surfaces/kit/controls/FieldReading.h"

#include "support/QtPrinters.h"
#include "support/ShownView.h"
#include "support/Text.h"

#include <QSignalSpy>

#include <unistd.h>

namespace vantle::tests {
namespace {

using Kind = QAccessible::TextBoundaryType;

const std::vector<Kind> kKinds{QAccessible::CharBoundary,     QAccessible::WordBoundary,
                               QAccessible::SentenceBoundary, QAccessible::ParagraphBoundary,
                               QAccessible::LineBoundary,     QAccessible::NoBoundary};
constexpr int kWithin = 20; // s; what never returns ends the program then

/// A field as a screen reader meets it: by its accessible interface alone.
class FieldReadingTest : public testing::Test {
protected:
    FieldReadingTest() { alarm(kWithin); }
    ~FieldReadingTest() override { alarm(0); }

    void show(const QString& content) {
        QQuickItem& field = view.show("Kit/DarkTextField",
                                      {{text("name"), text("Work note")},
                                       {text("placeholder"), text("Optional")},
                                       {text("text"), content}},
                                      {300, 40});
        input = field.property("input").value<QQuickItem*>();
        ASSERT_NE(input, nullptr);
        told = QAccessible::queryAccessibleInterface(input);
        ASSERT_NE(told, nullptr);
        ASSERT_NE(told->textInterface(), nullptr);
    }
    QString at(int offset, Kind kind) {
        return told->textInterface()->textAtOffset(offset, kind, &start, &end);
    }
    QString before(int offset, Kind kind) {
        return told->textInterface()->textBeforeOffset(offset, kind, &start, &end);
    }
    QString after(int offset, Kind kind) {
        return told->textInterface()->textAfterOffset(offset, kind, &start, &end);
    }

    ShownView view;
    QQuickItem* input = nullptr;
    QAccessibleInterface* told = nullptr;
    int start = 0;
    int end = 0;
};

TEST_F(FieldReadingTest, EveryBoundaryIsAnsweredEverywhere) {
    for (const QString& words :
         {QString(), text("a"), text("two words"), text("One. Two is last! "), text("  …  ")}) {
        show(words);
        const int length = int(words.size());
        for (const Kind kind : kKinds)
            for (const int offset : {0, length / 2, length, -1, -2, length + 1, 500}) {
                const QStringList parts{before(offset, kind), at(offset, kind),
                                        after(offset, kind)};
                EXPECT_TRUE(words.contains(parts.join(QString()))) << words.toStdString() << kind;
                const bool isOutside = offset > length;
                EXPECT_EQ(at(offset, kind).isEmpty(),
                          words.isEmpty() || isOutside ||
                              (kind == QAccessible::CharBoundary && at(offset, kind).isEmpty()));
                if (isOutside)
                    EXPECT_EQ(std::pair(start, end), std::pair(-1, -1));
                else
                    EXPECT_EQ(at(offset, kind), words.mid(start, end - start));
            }
    }
}

TEST_F(FieldReadingTest, AWordIsReadWithTheBlankBehindIt) {
    show(text("drafted the page"));
    EXPECT_EQ(at(0, QAccessible::WordBoundary), text("drafted "));
    EXPECT_EQ(at(9, QAccessible::WordBoundary), text("the "));
    EXPECT_EQ(before(9, QAccessible::WordBoundary), text("drafted "));
    EXPECT_EQ(after(9, QAccessible::WordBoundary), text("page"));
    EXPECT_EQ(at(16, QAccessible::WordBoundary), text("page"));
    EXPECT_EQ(std::pair(start, end), std::pair(12, 16));
    EXPECT_EQ(after(16, QAccessible::WordBoundary), text(""));
}

TEST_F(FieldReadingTest, ACharacterIsOneThatTheUserPerceives) {
    const QString family = text("\U0001F468\u200D\U0001F469");
    show(text("a") + family + text("b"));
    EXPECT_EQ(at(2, QAccessible::CharBoundary), family);
    EXPECT_EQ(before(2, QAccessible::CharBoundary), text("a"));
    EXPECT_EQ(after(2, QAccessible::CharBoundary), text("b"));
    EXPECT_EQ(before(1 + int(family.size()) + 1, QAccessible::CharBoundary), text("b"));
    EXPECT_EQ(at(1 + int(family.size()) + 1, QAccessible::CharBoundary), text(""));
}

TEST_F(FieldReadingTest, TheWholeFieldIsOneLineAndOneRunOfAttributes) {
    show(text("One line. Still the same."));
    EXPECT_EQ(at(12, QAccessible::LineBoundary), text("One line. Still the same."));
    EXPECT_EQ(at(12, QAccessible::SentenceBoundary), text("Still the same."));
    (void)told->textInterface()->attributes(12, &start, &end);
    EXPECT_EQ(std::pair(start, end), std::pair(0, 25));
    EXPECT_FALSE(told->state().multiLine);
}

TEST_F(FieldReadingTest, IsNamedStandsAndHasTheKeyboardAsItIsSeen) {
    show(text("note"));
    EXPECT_EQ(told->role(), QAccessible::EditableText);
    EXPECT_EQ(told->text(QAccessible::Name), text("Work note"));
    EXPECT_EQ(told->text(QAccessible::Description), text("Optional"));
    EXPECT_EQ(told->text(QAccessible::Value), text("note"));
    const QRect frame = view.frameOf(*input).toRect();
    EXPECT_EQ(told->rect(), frame.translated(view.window().position()));
    EXPECT_FALSE(told->state().invisible || told->state().offscreen || told->state().disabled);
    EXPECT_TRUE(told->state().editable);
    EXPECT_FALSE(told->state().focused);
    QAccessibleInterface* above = told->parent();
    ASSERT_NE(above, nullptr);
    EXPECT_GE(above->indexOfChild(told), 0);
    told->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    view.settle();
    EXPECT_EQ(view.keyboardOwner(), input);
    EXPECT_TRUE(told->state().focused);
}

TEST_F(FieldReadingTest, AScriptCanEditAndTheFieldHearsOfIt) {
    show(text("first draft"));
    QSignalSpy edited(input->parentItem()->parentItem()->parentItem(), SIGNAL(edited()));
    auto* const editing = told->editableTextInterface();
    ASSERT_NE(editing, nullptr);
    editing->insertText(5, text(" short"));
    EXPECT_EQ(told->text(QAccessible::Value), text("first short draft"));
    editing->deleteText(0, 6);
    EXPECT_EQ(told->text(QAccessible::Value), text("short draft"));
    editing->replaceText(0, 5, text("long"));
    EXPECT_EQ(told->text(QAccessible::Value), text("long draft"));
    EXPECT_GE(edited.count(), 3);
}

TEST_F(FieldReadingTest, CaretAndSelectionAreToldAndMoved) {
    show(text("first draft"));
    auto* const reading = told->textInterface();
    EXPECT_EQ(reading->characterCount(), 11);
    reading->setCursorPosition(3);
    EXPECT_EQ(reading->cursorPosition(), 3);
    EXPECT_EQ(reading->selectionCount(), 0);
    reading->addSelection(6, 11);
    reading->selection(0, &start, &end);
    EXPECT_EQ(reading->text(start, end), text("draft"));
    reading->removeSelection(0);
    EXPECT_EQ(reading->selectionCount(), 0);
    const QRect letter = reading->characterRect(6);
    EXPECT_GT(letter.width(), 2);
    EXPECT_TRUE(told->rect().contains(letter.center()));
    EXPECT_EQ(reading->offsetAtPoint(letter.center()), 6);
}

} // namespace
} // namespace vantle::tests
