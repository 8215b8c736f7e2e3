// The hours window by pointer and keys.
#include "support/ReadElements.h"
#include "support/ShownView.h"
#include "support/Text.h"
#include "surfaces/dashboard/DashboardWorld.h"
#include "surfaces/kit/tokens/DarkUI.h"
#include "surfaces/kit/tokens/Look.h"
#include "tracking/Samples.h"

#include <algorithm>

namespace vantle {
namespace {

using tests::text;

class DashboardPageTest : public testing::Test, protected tests::DashboardWorld {
protected:
    void show(QSize size = {}) {
        open();
        m_shown.emplace().show("Dashboard/DashboardPage",
                               {{text("model"), QVariant::fromValue(&*view)}}, size);
    }
    void click(const char* name) {
        m_shown->click(text(name));
        settle();
        m_shown->settle();
    }
    [[nodiscard]] QQuickItem* stateChip() { return m_shown->control(view->chipLabel()); }
    [[nodiscard]] QRectF chipFrame() { return m_shown->frameOf(*stateChip()); }

    std::optional<tests::ShownView> m_shown;
};

TEST_F(DashboardPageTest, ButtonsOfTheHeadDoWhatTheySay) {
    show();
    click("Log time");
    EXPECT_EQ(quickLogs, 1);
    click("Wrapped");
    EXPECT_EQ(reviews, 1);
    click("Start building");
    EXPECT_TRUE(hasMarker());
    EXPECT_EQ(m_shown->control(text("Start building")), nullptr);
}

TEST_F(DashboardPageTest, FiguresAndListsAreStopsOfTheKeyboard) {
    launch();
    disk.setContent(file("sessions.jsonl"),
                    samples::line(samples::session(1)) + samples::line(samples::session(2)));
    show();
    QStringList stops;
    for (int i = 0; i < 5; ++i) {
        stops << m_shown->keyboardOwner()->property("name").toString();
        m_shown->press(Qt::Key_Tab);
    }
    EXPECT_EQ(stops.at(0), text("Start building"));
    EXPECT_TRUE(stops.at(1).startsWith(text("Today: "))) << stops.at(1).toStdString();
    EXPECT_TRUE(stops.at(2).startsWith(text("Hour wall, "))) << stops.at(2).toStdString();
    EXPECT_EQ(stops.at(3), text("Build, 1 h, 100%"));
    for (const char* start : {"Today: ", "This week: ", "All time: "})
        EXPECT_TRUE(view->figuresSpoken().contains(text(start))) << start;
    const auto all = tests::readElements(m_shown->window());
    EXPECT_TRUE(std::ranges::any_of(
        all, [&](const auto& one) { return one.description == view->figuresSpoken(); }));
}

TEST_F(DashboardPageTest, LargerTextStandsInNoOther) {
    launch();
    QByteArray log;
    for (int i = 1; i <= 60; ++i) {
        Session session = samples::session(i);
        session.skillId = text(i % 3 == 0 ? "building" : i % 3 == 1 ? "connections" : "marketing");
        log += samples::line(session);
    }
    disk.setContent(file("sessions.jsonl"), log);
    for (const double factor : {1.0, 1.25, 1.5, 2.0}) {
        show();
        DarkUI::of(*m_shown->window().engine())->setTextScale(factor);
        m_shown->settle();
        EXPECT_EQ(m_shown->overlappingTexts(), QStringList()) << factor;
        m_shown.reset();
    }
}

TEST_F(DashboardPageTest, WarningStandsAsFarBelowTheHeadAsTheFigures) {
    constexpr double kBelowHead = 16; // px
    show();
    const double head = m_shown->frameOf(*m_shown->control(text("Log time"))).bottom() + 1;
    const auto topOfCardAround = [&](const QString& words) {
        const QQuickItem* item =
            tests::shownItem(m_shown->window().contentItem(), [&](const QQuickItem& one) {
                return one.property("text").toString() == words;
            });
        while (item != nullptr && !item->property("radius").isValid())
            item = item->parentItem();
        return item == nullptr ? 0 : m_shown->frameOf(*item).top();
    };
    EXPECT_EQ(topOfCardAround(text("Today")), head + kBelowHead);
    m_shown.reset();
    disk.setContent(file("sessions.jsonl"), "this is no record\n");
    show();
    EXPECT_EQ(topOfCardAround(view->warning()), head + kBelowHead);
}

TEST_F(DashboardPageTest, EmptyCardsSayTheirWordsInTheirMiddle) {
    show();
    const auto frame = [&](const QString& words) {
        const QQuickItem* const item =
            tests::shownItem(m_shown->window().contentItem(), [&](const QQuickItem& one) {
                return one.property("text").toString() == words;
            });
        return item == nullptr ? QRectF() : m_shown->frameOf(*item);
    };
    const QRectF heading = frame(text("Hours by skill"));
    const QRectF words = frame(text("Your active skills will appear after the first session."));
    const QRectF card(heading.left() - 16, heading.top() - 11, 246, 208);
    EXPECT_NEAR(words.center().x(), card.center().x(), 1);
    // A row of sockets stands above the words; the two of them are in the middle.
    m_shown->window().setColor(look::kDark.windowGround.color());
    const QImage picture = m_shown->picture();
    const auto litAlong = [&](double y) {
        int changes = 0;
        for (int x = int(card.left()) + 4; x < card.right() - 4; ++x)
            if (picture.pixel(x, int(y)) != picture.pixel(x - 1, int(y))) ++changes;
        return changes;
    };
    double top = words.top();
    for (double y = heading.bottom() + 4; y < words.top() && top == words.top(); ++y)
        if (litAlong(y) > 0) top = y;
    EXPECT_LT(top, words.top() - 12) << "no sockets above the words";
    EXPECT_NEAR((top + words.bottom()) / 2, card.center().y(), 3);

    const QRectF start = m_shown->frameOf(*m_shown->control(text("Start your first session")));
    const QRectF keys = frame(text("⌥⌘B works from anywhere"));
    EXPECT_NEAR((start.top() + keys.bottom()) / 2, card.center().y(), 2);
}

TEST_F(DashboardPageTest, ShortcutIsOfferedOnlyWhileItIsHeld) {
    const QString words = text("⌥⌘B works from anywhere");
    show();
    EXPECT_TRUE(m_shown->shows(words));
    hotKeyPort.become({HotKeyPort::Registration::HeldByAnother, 0});
    settle();
    m_shown->settle();
    EXPECT_FALSE(m_shown->shows(words));
    hotKeyPort.become({HotKeyPort::Registration::Registered, 0});
    settle();
    m_shown->settle();
    EXPECT_TRUE(m_shown->shows(words));
    hotKeyPort.become({HotKeyPort::Registration::NotOffered});
    settle();
    m_shown->settle();
    EXPECT_FALSE(m_shown->shows(words));
}

TEST_F(DashboardPageTest, NamesOfEveryScriptStandAtTheLeftOfTheirColumns) {
    launch();
    const QString hebrew = QStringLiteral("\u05E2\u05D9\u05E6\u05D5\u05D1");
    const Skill mode = skills->display(text("building"));
    model->updateSkill(mode.id, hebrew, mode.hexRGB);
    disk.setContent(file("sessions.jsonl"),
                    samples::line(samples::sessionEnding(time.now(), 3600)));
    show();
    int seen = 0;
    const QImage picture = m_shown->picture();
    (void)tests::shownItem(m_shown->window().contentItem(), [&](const QQuickItem& item) {
        if (item.property("text").toString() != hebrew) return false;
        ++seen;
        const QRect frame = m_shown->frameOf(item).toAlignedRect();
        int left = frame.right();
        for (int x = frame.left(); x < left; ++x)
            for (int y = frame.top(); y < frame.bottom(); ++y)
                if (qGray(picture.pixel(x, y)) > 120) left = std::min(left, x);
        EXPECT_LE(left - frame.left(), 4);
        return false;
    });
    EXPECT_GE(seen, 2) << "in both tables";
}

TEST_F(DashboardPageTest, YearsOfWorkFitBesideTheHeadingOfTheSessions) {
    launch();
    QByteArray log;
    for (int number = 1; number <= 1920; ++number) {
        Session session = samples::sessionEnding(time.now() - Seconds(3600.0 * number), 3290);
        session.id = samples::id(number);
        log += samples::line(session);
    }
    disk.setContent(file("sessions.jsonl"), log);
    show();
    EXPECT_TRUE(m_shown->shows(text("1920 sessions · 1754 h 40 min")));
    EXPECT_EQ(m_shown->cutTexts(), QStringList());
}

TEST_F(DashboardPageTest, StateChipStaysAsWideUnderThePointerAsBesideIt) {
    show();
    click("Start building");
    time.advance(90);
    m_shown->moveTo({10, 300});
    ASSERT_NE(stateChip(), nullptr);
    const QRectF rest = chipFrame();
    EXPECT_TRUE(m_shown->shows(view->chipState()));
    for (double x = rest.left() + 1; x < rest.right(); x += 4) {
        m_shown->moveTo({x, rest.center().y()});
        EXPECT_EQ(chipFrame(), rest) << "with the pointer at " << x - rest.left();
        EXPECT_TRUE(m_shown->shows(view->chipHoverText()));
    }
    m_shown->moveTo({10, 300});
    EXPECT_TRUE(m_shown->shows(view->chipState()));
    EXPECT_EQ(chipFrame(), rest);
}

TEST_F(DashboardPageTest, KeyboardGoesFromTheButtonToTheChipAndBack) {
    show();
    ASSERT_EQ(m_shown->keyboardOwner(), m_shown->control(text("Start building")));
    m_shown->press(Qt::Key_Space);
    settle();
    m_shown->settle();
    ASSERT_NE(stateChip(), nullptr);
    EXPECT_EQ(m_shown->keyboardOwner(), stateChip());
    m_shown->press(Qt::Key_Space);
    settle();
    m_shown->settle();
    EXPECT_FALSE(hasMarker());
    EXPECT_EQ(m_shown->keyboardOwner(), m_shown->control(text("Start building")));
}

TEST_F(DashboardPageTest, ClickAtTheLeftEdgeOfTheStateChipStopsTheSession) {
    show();
    click("Start building");
    time.advance(90);
    m_shown->moveTo({10, 300});
    const QRectF rest = chipFrame();
    m_shown->clickAt({rest.left() + 2, rest.center().y()});
    settle();
    EXPECT_FALSE(hasMarker());
    EXPECT_EQ(log().size(), 1U);
}

/// The log of some years, under modes with names as long as they may be.
class NarrowDashboardTest : public DashboardPageTest {
protected:
    NarrowDashboardTest() {
        launch();
        const Skill first = model->skills().front();
        model->updateSkill(first.id, longName, first.hexRGB);
        QByteArray lines;
        for (int number = 1; number <= 130; ++number) {
            Session session = samples::session(number);
            session.skillId = first.id;
            session.startedAt = time.now() - Seconds(number * 24 * 3600.0);
            session.endedAt = session.startedAt + Seconds(8 * 3600.0);
            session.activeSeconds = 8 * 3600;
            lines += samples::line(session);
        }
        disk.setContent(file("sessions.jsonl"), lines);
    }

    [[nodiscard]] std::string statsText() const {
        QStringList all;
        for (const QVariant& stat : view->stats())
            all << stat.value<StatBlock>().spoken();
        return all.join(QLatin1Char('\n')).toStdString();
    }

    const QString longName = text("Wide Workshop Mowing");
    static constexpr QSize kNarrowest{380, 700};
};

TEST_F(NarrowDashboardTest, NothingIsCutButANameWithoutASession) {
    show(kNarrowest);
    EXPECT_TRUE(m_shown->shows(text("Your hours")));
    EXPECT_TRUE(m_shown->shows(text("next milestone 2500 h"))) << statsText();
    for (const QString& words : m_shown->cutTexts())
        EXPECT_EQ(words, longName);
    click("Log time");
    EXPECT_EQ(quickLogs, 1);
    click("Start building");
    EXPECT_TRUE(hasMarker());
}

TEST_F(NarrowDashboardTest, RunningTimeIsSeenWhateverTheModeIsCalled) {
    show(kNarrowest);
    click("Start building");
    time.advance(3600 + 59 * 60);
    m_shown->moveTo({10, 500});
    EXPECT_TRUE(m_shown->shows(text(" · 1 h 59 min")));
    for (const QString& words : m_shown->cutTexts())
        EXPECT_TRUE(words.contains(longName)) << words.toStdString();
    click("Wrapped");
    EXPECT_EQ(reviews, 1);
    m_shown->click(stateChip());
    settle();
    EXPECT_FALSE(hasMarker());
}

TEST_F(NarrowDashboardTest, LongNameHasTheControlsBelowTheTitle) {
    show();
    click("Start building");
    time.advance(3600 + 59 * 60);
    m_shown->moveTo({10, 500});
    EXPECT_TRUE(m_shown->shows(text("Your hours")));
    EXPECT_TRUE(m_shown->shows(text(" · 1 h 59 min")));
    for (const QString& words : m_shown->cutTexts())
        EXPECT_EQ(words, longName);
}

} // namespace
} // namespace vantle
