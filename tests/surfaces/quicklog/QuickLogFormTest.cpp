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

INSTANTIATE_TEST_SUITE_P(EveryFigure, QuickLogFormTest,
                         testing::Values("Hours worked", "Minutes worked"));

} // namespace
} // namespace vantle
