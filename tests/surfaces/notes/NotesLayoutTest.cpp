// Where the parts of the notes window stand.
#include "support/ShownView.h"
#include "support/Text.h"
#include "surfaces/kit/tokens/Look.h"
#include "surfaces/notes/NotesWorld.h"

#include <algorithm>

namespace vantle {
namespace {

using tests::text;

class NotesLayoutTest : public testing::Test, protected tests::NotesWorld {
protected:
    void show() {
        m_shown.emplace().show("Notes/NotesLogView",
                               {{text("model"), QVariant::fromValue(&*view)}});
        m_shown->window().setColor(look::kDark.windowGround.color());
    }
    [[nodiscard]] QRectF frameOfText(const QString& words) {
        const QQuickItem* const item =
            tests::shownItem(m_shown->window().contentItem(), [&](const QQuickItem& one) {
                return one.property("text").toString() == words;
            });
        return item == nullptr ? QRectF() : m_shown->frameOf(*item);
    }

    std::optional<tests::ShownView> m_shown;
};

TEST_F(NotesLayoutTest, OnlyTheFirstLineOfANoteLeavesRoomForTheButtons) {
    constexpr int kLine = 20; // px
    const QByteArray note = QByteArray("one two ").repeated(30).trimmed();
    write({note.constData()});
    open();
    show();
    const QRectF words = frameOfText(QString::fromLatin1(note));
    ASSERT_GT(words.height(), 2.5 * kLine) << "three lines";
    const QImage picture = m_shown->picture(); // the pointer is elsewhere: no buttons
    m_shown->moveTo(words.center());
    const QQuickItem* const copy =
        tests::shownItem(m_shown->window().contentItem(), [](const QQuickItem& item) {
            return item.property("name").toString() == text("Copy this note");
        });
    ASSERT_NE(copy, nullptr);
    const auto lastLit = [&](int line) {
        int last = 0;
        const int top = static_cast<int>(words.top()) + line * kLine;
        for (int y = top; y < top + kLine; ++y)
            for (int x = static_cast<int>(words.left()); x < picture.width(); ++x)
                if (qGray(picture.pixel(x, y)) > 120) last = std::max(last, x);
        return last;
    };
    EXPECT_LE(lastLit(0), m_shown->frameOf(*copy).left());
    EXPECT_GT(lastLit(1), m_shown->frameOf(*copy).left() + 10) << "all of the width";
}

TEST_F(NotesLayoutTest, TimesStandClearOfTheNotes) {
    constexpr double kClear = 16; // px
    write({"alpha"});
    open();
    show();
    const QRectF shownTime = frameOfText(shown(NoteRows::TimeRole)[0]);
    ASSERT_GT(shownTime.width(), 0);
    EXPECT_GE(frameOfText(text("alpha")).left() - shownTime.right(), kClear);
}

TEST_F(NotesLayoutTest, SearchThatIsThereBeforeTheWindowStandsInItsField) {
    write({"alpha"});
    open().setQuery(text("nothing like it"));
    show();
    EXPECT_TRUE(m_shown->shows(text("Nothing matches that yet.")));
    const QQuickItem* const search = m_shown->field(text("Search notes"));
    EXPECT_EQ(search->property("text").toString(), text("nothing like it"));
    m_shown->click(text("Clear the filters"));
    EXPECT_EQ(search->property("text").toString(), QString());
    EXPECT_TRUE(m_shown->shows(text("alpha")));
}

} // namespace
} // namespace vantle
