// The form that adds time by hand, by keys.
#include "app/ModelWorld.h"
#include "support/ShownView.h"
#include "support/Text.h"
#include "surfaces/quicklog/QuickLogView.h"

#include <optional>

namespace vantle {
namespace {

using tests::text;

class QuickLogFormTest : public testing::TestWithParam<const char*>, protected tests::ModelWorld {
protected:
    void show() {
        launch();
        m_view.emplace(model->flow(), *skills, preferences, [] {});
        m_shown.emplace().show("QuickLog/QuickLogForm",
                               {{text("model"), QVariant::fromValue(&*m_view)}});
    }
    [[nodiscard]] QString shownIn(const char* name) {
        return m_shown->field(text(name))->property("text").toString();
    }

    [[nodiscard]] const QQuickItem* item(const char* property, const QString& value) {
        return tests::shownItem(m_shown->window().contentItem(), [&](const QQuickItem& one) {
            return one.property(property).toString() == value;
        });
    }

    std::optional<QuickLogView> m_view;
    std::optional<tests::ShownView> m_shown;
};

TEST_P(QuickLogFormTest, FullFigureRefusesADigitInItsMiddle) {
    show();
    m_shown->click(m_shown->field(text(GetParam())));
    m_shown->press(Qt::Key_A, Qt::ControlModifier);
    m_shown->type(text("123456"));
    m_shown->press(Qt::Key_Left);
    m_shown->press(Qt::Key_Left);
    m_shown->type(text("9"));
    EXPECT_EQ(shownIn(GetParam()), text("123456"));
    m_shown->press(Qt::Key_Backspace);
    EXPECT_EQ(shownIn(GetParam()), text("12356")) << "the caret stayed";
    m_shown->type(text("7"));
    EXPECT_EQ(shownIn(GetParam()), text("123756"));
}

using QuickLogLayoutTest = QuickLogFormTest;

TEST_F(QuickLogLayoutTest, CaptionStandsClearOfTheTitleWithALineForEachSentence) {
    show();
    const QQuickItem* const title = item("text", text("Add time manually"));
    const QQuickItem* const caption =
        tests::shownItem(m_shown->window().contentItem(), [](const QQuickItem& one) {
            return one.property("text").toString().startsWith(text("For work the clock"));
        });
    ASSERT_NE(title, nullptr);
    ASSERT_NE(caption, nullptr);
    const double above =
        caption->property("topPadding").toDouble() + caption->property("bottomPadding").toDouble();
    EXPECT_EQ(m_shown->frameOf(*caption).top() + above - m_shown->frameOf(*title).bottom(), 6);
    EXPECT_EQ(caption->property("lineCount").toInt(), 2);
    EXPECT_EQ(caption->property("text").toString().indexOf(QLatin1Char('\n')),
              text("For work the clock didn’t see.").size());
}

TEST_F(QuickLogLayoutTest, ChevronStandsAsFarInsideAsTheTextOfAField) {
    show();
    const QQuickItem* const chevron = item("name", text("chevron-down"));
    ASSERT_NE(chevron, nullptr);
    EXPECT_EQ(m_shown->frameOf(*chevron->parentItem()).right() - m_shown->frameOf(*chevron).right(),
              12);
}

INSTANTIATE_TEST_SUITE_P(EveryFigure, QuickLogFormTest,
                         testing::Values("Hours worked", "Minutes worked"));

} // namespace
} // namespace vantle
