// The view over the real model: every step draws, and its controls and keys do what they say.
#include "support/ShownItems.h"
#include "surfaces/kit/tokens/Look.h"
#include "surfaces/kit/tokens/Motion.h"
#include "surfaces/welcome/WelcomeWorld.h"

#include <QAccessible>
#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QFontMetricsF>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <QSet>

#include <gtest/gtest.h>

namespace vantle {
namespace {

using namespace welcometext;

class WelcomePageTest : public testing::Test, protected tests::WelcomeWorld {
protected:
    QQuickItem& show() {
        open();
        m_window.engine()->addImportPath(text("qrc:/qt/qml"));
        Motion::of(*m_window.engine())->setReduced(true);
        QObject::connect(m_window.engine(), &QQmlEngine::warnings, [this](const auto& list) {
            for (const QQmlError& one : list)
                m_warnings << one.toString();
        });
        m_window.setInitialProperties({{text("model"), QVariant::fromValue(&*view)}});
        m_window.setSource(QUrl(text("qrc:/qt/qml/Vantle/Welcome/WelcomePage.qml")));
        m_window.show();
        m_window.requestActivate();
        QCoreApplication::processEvents();
        return *m_window.rootObject();
    }
    /// The picture of the capsule alone, without its page.
    void showSampleCapsule() {
        open();
        walkTo(Notch);
        m_window.engine()->addImportPath(text("qrc:/qt/qml"));
        m_window.setInitialProperties({{text("samples"), QVariant::fromValue(view->samples())}});
        m_window.setSource(QUrl(text("qrc:/qt/qml/Vantle/Welcome/SampleCapsule.qml")));
        m_window.show();
        (void)m_window.grabWindow();
    }
    [[nodiscard]] bool shows(const char* words) { return tests::showsText(m_window, text(words)); }
    [[nodiscard]] QQuickItem* control(const char* name) {
        return tests::shownControl(m_window, text(name));
    }
    void click(const char* name) {
        QQuickItem* const item = control(name);
        ASSERT_NE(item, nullptr) << name;
        QMetaObject::invokeMethod(item, "clicked");
        settle();
        QCoreApplication::processEvents();
    }
    void key(int code, const QString& typed = {}) {
        tests::sendKey(m_window, code, typed);
        settle();
        QCoreApplication::processEvents();
    }
    void type(const char* word) {
        for (const QChar letter : text(word))
            key(0, QString(letter));
    }
    /// What assistive tools find, by role: their names.
    void collect(QAccessible::Role role, QAccessibleInterface* of, QStringList& names) {
        if (of == nullptr || of->state().invisible) return;
        if (of->role() == role) names << of->text(QAccessible::Name);
        for (int i = 0; i < of->childCount(); ++i)
            collect(role, of->child(i), names);
    }
    [[nodiscard]] QStringList readAs(QAccessible::Role role) {
        QStringList names;
        collect(role, QAccessible::queryAccessibleInterface(m_window.rootObject()), names);
        return names;
    }

    /// The picture of the step before fades away in a moment of real time.
    [[nodiscard]] QStringList pictures() {
        const QDeadlineTimer soon(5000);
        while (readAs(QAccessible::Graphic).size() > 1 && !soon.hasExpired())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
        return readAs(QAccessible::Graphic);
    }

    [[nodiscard]] const QQuickItem* shownText(const QString& words) {
        return tests::shownItem(m_window.contentItem(), [&](const QQuickItem& item) {
            return item.property("text").toString() == words;
        });
    }
    [[nodiscard]] static QRectF sceneFrame(const QQuickItem& item) {
        return item.mapRectToScene({0, 0, item.width(), item.height()});
    }

    /// How many colours there are where an item stands.
    [[nodiscard]] qsizetype colorsIn(const QQuickItem& item) {
        const QImage shown =
            m_window.grabWindow().copy(item.mapRectToScene(item.boundingRect()).toRect() &
                                       m_window.contentItem()->boundingRect().toRect());
        QSet<QRgb> colors;
        for (int y = 0; y < shown.height(); ++y)
            for (int x = 0; x < shown.width(); ++x)
                colors << shown.pixel(x, y);
        return colors.size();
    }

    QStringList m_warnings;
    QQuickView m_window;
};

TEST_F(WelcomePageTest, IsAsLargeAsItsWindowAndDrawsEveryStepWithoutAWarning) {
    const QQuickItem& page = show();
    EXPECT_EQ(page.implicitWidth(), 560);
    EXPECT_EQ(page.implicitHeight(), 572);
    for (int step = 0; step < stepCount; ++step) {
        walkTo(step);
        QCoreApplication::processEvents();
        EXPECT_FALSE(m_window.grabWindow().isNull());
        EXPECT_TRUE(shows(view->title().toUtf8().constData())) << step;
        EXPECT_TRUE(shows(view->body().toUtf8().constData())) << step;
    }
    EXPECT_EQ(m_warnings, QStringList());
}

TEST_F(WelcomePageTest, PicturesOfTheSurfacesAreAsLargeAsTheirStageHasRoomFor) {
    show();
    for (const char* name : {"Investors", "Many more words here"})
        model->addSkill(text(name), 0xACF35C);
    for (const int step : {int(Notch), int(Dashboard), int(Brick)}) {
        walkTo(step);
        (void)pictures();
        (void)m_window.grabWindow(); // what is drawn has been laid out
        const QQuickItem* const picture =
            tests::shownItem(m_window.contentItem(), [](const auto& item) {
                return QByteArray(item.metaObject()->className()) == "vantle::Miniature";
            });
        ASSERT_NE(picture, nullptr) << step;
        EXPECT_GT(picture->width(), 200) << step;
        EXPECT_LE(picture->width(), 520 - 2 * 16 + 1) << step;
        EXPECT_GT(colorsIn(*picture), 100) << step << ": not an empty plate";
    }
}

TEST_F(WelcomePageTest, SampleLineIsNotCrowdedByTheFoot) {
    constexpr double kBetweenGroups = 20; // px
    show();
    int steps = 0;
    for (int step = Success; step < stepCount; ++step) {
        walkTo(step);
        (void)pictures();
        (void)m_window.grabWindow();
        const QQuickItem* const line = shownText(view->sampleLine());
        if (view->sampleLine().isEmpty()) continue;
        ++steps;
        ASSERT_NE(line, nullptr) << step;
        const QQuickItem* const foot = control(view->primaryText().toUtf8().constData());
        ASSERT_NE(foot, nullptr) << step;
        EXPECT_GE(sceneFrame(*foot).top() - sceneFrame(*line).bottom(), kBetweenGroups) << step;
    }
    EXPECT_EQ(steps, 4);
}

TEST_F(WelcomePageTest, NamesAreAsLargeAsTheWordsBelowThePicture) {
    constexpr int kLead = 15; // px
    show();
    const auto size = [this](const char* words) {
        const QQuickItem* const name = shownText(text(words));
        return name ? name->property("font").value<QFont>().pixelSize() : 0;
    };
    walkTo(Modes);
    (void)pictures();
    EXPECT_EQ(size("Marketing"), kLead);
    walkTo(Success);
    (void)pictures();
    EXPECT_EQ(size(view->samples()->apps()[0].value<SampleApp>().name.toUtf8().constData()), kLead);
}

TEST_F(WelcomePageTest, WallKeepsWithinTheRoundCornersOfItsStage) {
    show();
    m_window.setColor(look::kDark.windowGround.color());
    const QImage picture = m_window.grabWindow();
    constexpr int kStage = 20; // px from the left
    const QRgb beside = picture.pixel(kStage / 2, 2);
    for (const int x : {kStage, kStage + 1, 560 - kStage - 2, 560 - kStage - 1})
        EXPECT_EQ(picture.pixel(x, 0), beside) << x;
    EXPECT_NE(picture.pixel(kStage + 14, 1), beside) << "a brick";
}

TEST_F(WelcomePageTest, ClockOfThePracticeStandsCloseBelowItsMode) {
    show();
    walkTo(Stop);
    (void)m_window.grabWindow();
    const QQuickItem* const mode = shownText(text("BUILD"));
    ASSERT_NE(mode, nullptr);
    const QQuickItem* const clock =
        tests::shownItem(m_window.contentItem(), [](const QQuickItem& item) {
            return item.inherits("vantle::TabularLine");
        });
    ASSERT_NE(clock, nullptr);
    const double row = sceneFrame(*mode->parentItem()).bottom();
    EXPECT_NEAR(sceneFrame(*clock).top() - row, 8, 0.1);
}

TEST_F(WelcomePageTest, PointerOfTheSampleStandsBesideTheNames) {
    showSampleCapsule();
    const QQuickItem* const pointer =
        tests::shownItem(m_window.contentItem(), [](const QQuickItem& item) {
            return item.property("source").toString().contains(text("pointer.svg"));
        });
    ASSERT_NE(pointer, nullptr);
    int names = 0;
    (void)tests::shownItem(m_window.contentItem(), [&](const QQuickItem& item) {
        if (item.property("text").toString().isEmpty() || !item.childItems().isEmpty())
            return false;
        ++names;
        EXPECT_FALSE(sceneFrame(item).intersects(sceneFrame(*pointer)))
            << item.property("text").toString().toStdString();
        return false;
    });
    EXPECT_GE(names, 6);
}

TEST_F(WelcomePageTest, StillClockHasTheWidthsOfItsTypeface) {
    showSampleCapsule();
    const QQuickItem* const clock = shownText(view->samples()->capsule()->clock());
    ASSERT_NE(clock, nullptr);
    const QFontMetricsF widths(clock->property("font").value<QFont>());
    EXPECT_NEAR(clock->property("implicitWidth").toDouble(),
                widths.horizontalAdvance(view->samples()->capsule()->clock()), 1);
}

TEST_F(WelcomePageTest, GoesByTheKeyboardAloneFromTheFirstWordToTheLastButton) {
    show();
    type("Lumen");
    key(Qt::Key_Return);
    EXPECT_EQ(view->step(), Modes);
    EXPECT_EQ(model->projectName(), text("Lumen"));
    key(Qt::Key_Return);
    EXPECT_EQ(view->step(), Press);
    key(Qt::Key_Return);
    EXPECT_EQ(view->step(), Stop);
    EXPECT_TRUE(shows("BUILD"));
    key(Qt::Key_Return);
    EXPECT_FALSE(control("Stop Vantle")->isEnabled());
    key(Qt::Key_Return);
    EXPECT_EQ(view->step(), Stop) << "it waits for the card";
    EXPECT_FALSE(view->isPracticeRunning());
    closeCard();
    QCoreApplication::processEvents();
    for (int step = Success; step < Done; ++step) {
        EXPECT_EQ(view->step(), step);
        key(Qt::Key_Return);
    }
    key(Qt::Key_Escape);
    EXPECT_EQ(closed, 0) << "only a button ends it";
    key(Qt::Key_Space);
    EXPECT_EQ(closed, 1);
}

TEST_F(WelcomePageTest, TabLeadsFromTheFieldToSkipping) {
    show();
    key(Qt::Key_Tab);
    key(Qt::Key_Space);
    EXPECT_EQ(closed, 1);
}

TEST_F(WelcomePageTest, ModesAreChangedByTheKeyboard) {
    show();
    walkTo(Modes);
    QCoreApplication::processEvents();
    click("Add your own");
    type("Investors");
    key(Qt::Key_Return);
    EXPECT_TRUE(shows("Investors"));
    EXPECT_TRUE(shows("Added Investors"));
    click("Rename Marketing");
    EXPECT_TRUE(control("Save")->isEnabled());
    type("Growth");
    key(Qt::Key_Escape);
    EXPECT_TRUE(shows("Marketing")) << "Escape leaves it as it was";
    click("Remove Connections");
    EXPECT_FALSE(shows("Connections"));
    EXPECT_EQ(view->step(), Modes);
}

TEST_F(WelcomePageTest, KeyboardStaysNearWhatHasGone) {
    show();
    walkTo(Modes);
    QCoreApplication::processEvents();
    click("Add your own");
    key(Qt::Key_Escape);
    EXPECT_EQ(m_window.activeFocusItem(), control("Add your own"));
    control("Rename Marketing")->forceActiveFocus(Qt::TabFocusReason);
    key(Qt::Key_Space);
    key(Qt::Key_Escape);
    EXPECT_EQ(m_window.activeFocusItem(), control("Rename Marketing"));
    control("Remove Design")->forceActiveFocus(Qt::TabFocusReason);
    key(Qt::Key_Space);
    EXPECT_FALSE(shows("Design"));
    EXPECT_EQ(m_window.activeFocusItem(), control("Remove Marketing"));
}

TEST_F(WelcomePageTest, PicturesAreOnePictureForAssistiveToolsAndNoStopForTheKeyboard) {
    show();
    for (const int step : {int(Success), int(Notch), int(Dashboard), int(Brick), int(Wrapped)}) {
        walkTo(step);
        time.advance(1);
        QCoreApplication::processEvents();
        EXPECT_EQ(pictures(), QStringList{view->sampleLabel()}) << step;
        QStringList buttons{text("Continue")};
        if (step == Wrapped) buttons.prepend(text("Open Wrapped"));
        EXPECT_EQ(readAs(QAccessible::Button), buttons) << step;
        for (int tabs = 0; tabs < 4; ++tabs) {
            key(Qt::Key_Tab);
            EXPECT_TRUE(buttons.contains(m_window.activeFocusItem()->property("name").toString()));
        }
    }
}

TEST_F(WelcomePageTest, TellsAssistiveToolsTheStepAndTheTitle) {
    show();
    walkTo(Press);
    QCoreApplication::processEvents();
    EXPECT_EQ(readAs(QAccessible::Heading), QStringList{text("Press it now")});
    EXPECT_EQ(readAs(QAccessible::Indicator), QStringList{text("Step 3 of 10")});
    EXPECT_EQ(pictures(), QStringList{text("The keys Alt, Super and B")});
}

} // namespace
} // namespace vantle
