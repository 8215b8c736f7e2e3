#include "platform/tray/DesktopTrayItem.h"

#include "platform/tray/FakeStatusNotifierWatcher.h"
#include "platform/tray/Images.h"
#include "platform/tray/Trayer.h"

#include <QApplication>
#include <QCursor>
#include <QDir>
#include <QFile>
#include <QPalette>
#include <QPixmap>
#include <QScreen>
#include <QTemporaryDir>
#include <QtEndian>

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <optional>

namespace vantle {
namespace {

using tests::await;
using tests::FakeStatusNotifierWatcher;
using tests::Trayer;

class DesktopTrayItemTest : public testing::Test {
protected:
    DesktopTrayItemTest() : m_item(std::in_place, m_client.bus()) {
        QObject::connect(&*m_item, &TrayItem::clicked, [this](QPoint place) { m_clicks << place; });
        QObject::connect(&*m_item, &TrayItem::shownChanged,
                         [this] { m_shown << m_item->isShown(); });
    }
    ~DesktopTrayItemTest() override {
        (void)tests::run(QStringLiteral("xdotool mousemove 20 500"));
        QGuiApplication::setPalette(m_palette);
    }

    /// The colour on the screen in the middle of the item.
    [[nodiscard]] QColor colourOnScreen() const {
        const QPoint middle = m_item->geometry().center();
        return QGuiApplication::primaryScreen()
            ->grabWindow(0, middle.x(), middle.y(), 1, 1)
            .toImage()
            .pixelColor(0, 0);
    }
    void expectOnScreen(const QColor& colour) {
        EXPECT_TRUE(await([&] { return m_item->isShown() && colourOnScreen() == colour; }))
            << qPrintable(colourOnScreen().name()) << " instead of " << qPrintable(colour.name());
    }
    /// The colour of the desktop's text, which a template takes.
    void setTextColour(const QColor& colour) {
        QPalette palette = m_palette;
        palette.setColor(QPalette::WindowText, colour);
        QGuiApplication::setPalette(palette);
    }
    /// Whether the item is with that watcher's hosts and in no other tray.
    [[nodiscard]] bool isShownBy(const FakeStatusNotifierWatcher& watcher) const {
        return m_item->isShown() && !watcher.items.isEmpty() && m_item->geometry().isEmpty();
    }
    [[nodiscard]] QString middleOfItem() const {
        const QPoint middle = m_item->geometry().center();
        return QStringLiteral("%1 %2").arg(middle.x()).arg(middle.y());
    }

    const QPalette m_palette = QGuiApplication::palette();
    const QIcon m_red = tests::square(Qt::red);
    const QIcon m_blue = tests::square(Qt::blue);
    tests::BusClient m_client;
    std::optional<DesktopTrayItem> m_item;
    QList<QPoint> m_clicks;
    QList<bool> m_shown;
};

QByteArray pixelsOf(FakeStatusNotifierWatcher& watcher) {
    return watcher.pixmaps().value(0).argb.first(4);
}
QImage imageOf(const TrayPixmap& pixmap) {
    QImage image(pixmap.width, pixmap.height, QImage::Format_ARGB32);
    for (int y = 0; y < pixmap.height; ++y)
        for (int x = 0; x < pixmap.width; ++x)
            image.setPixel(
                x, y, qFromBigEndian<QRgb>(pixmap.argb.constData() + 4 * (y * pixmap.width + x)));
    return image;
}
const QString kDarkBar = QStringLiteral("--transparent true --alpha 0 --tint 0x202020");
const QByteArray kRedPixel = QByteArray::fromHex("ffff0000");
const QByteArray kBluePixel = QByteArray::fromHex("ff0000ff");

TEST_F(DesktopTrayItemTest, IsSeenInATrayThatTakesWindows) {
    const Trayer tray;
    m_item->setImage(m_red, false);
    expectOnScreen(Qt::red);
    EXPECT_TRUE(QGuiApplication::primaryScreen()->geometry().contains(m_item->geometry()));
    m_item->setImage(m_blue, false);
    expectOnScreen(Qt::blue);
}

TEST_F(DesktopTrayItemTest, TemplateTakesTheColourOfTheBarsText) {
    const Trayer tray;
    m_item->setImage(tests::disc(Qt::black), true);
    expectOnScreen(m_palette.color(QPalette::WindowText));
    setTextColour(Qt::blue);
    expectOnScreen(Qt::blue);
}

TEST_F(DesktopTrayItemTest, DarkTemplateIsWhiteOnADarkBar) {
    setTextColour(Qt::black);
    const Trayer tray(kDarkBar);
    m_item->setImage(tests::disc(Qt::black), true);
    expectOnScreen(Qt::white);
}

TEST_F(DesktopTrayItemTest, TellsWhetherTheBarIsLight) {
    setTextColour(Qt::black);
    EXPECT_TRUE(m_item->isOnLightGround()) << "by the theme";
    setTextColour(Qt::white);
    EXPECT_FALSE(m_item->isOnLightGround());
    setTextColour(Qt::black);
    const Trayer tray(kDarkBar);
    m_item->setImage(m_red, false);
    EXPECT_TRUE(await([&] { return !m_item->isOnLightGround(); })) << "by the bar itself";
}

TEST_F(DesktopTrayItemTest, TemplateHasNoEdgeOnABarWhoseColourIsSeen) {
    setTextColour(Qt::black);
    const Trayer tray(kDarkBar);
    m_item->setImage(tests::disc(Qt::black), true);
    expectOnScreen(Qt::white);
    const auto darkest = [this] {
        const QRect place = m_item->geometry();
        const QImage seen = QGuiApplication::primaryScreen()
                                ->grabWindow(0, place.x(), place.y(), place.width(), place.height())
                                .toImage();
        int gray = 255;
        for (int y = 0; y < seen.height(); ++y)
            for (int x = 0; x < seen.width(); ++x)
                gray = std::min(gray, qGray(seen.pixel(x, y)));
        return gray;
    };
    EXPECT_TRUE(await([&] { return darkest() >= 0x1c; })) << darkest();
}

TEST_F(DesktopTrayItemTest, HostGetsATemplateThatIsSeenOnAPanelOfEitherBrightness) {
    FakeStatusNotifierWatcher watcher;
    watcher.appear();
    for (const QColor text : {QColor(Qt::black), QColor(Qt::white)}) {
        QPalette palette = m_palette;
        palette.setColor(QPalette::WindowText, text);
        QGuiApplication::setPalette(palette);
        m_item->setImage(tests::disc(Qt::black, {16, 18, 22, 24}), true);
        ASSERT_TRUE(await([&] { return m_item->isShown(); }));
        const TrayPixmaps sent = watcher.pixmaps();
        EXPECT_EQ(sent.size(), 4);
        for (const TrayPixmap& pixmap : sent) {
            EXPECT_GE(tests::seenOn(Qt::black, imageOf(pixmap)), pixmap.width);
            EXPECT_GE(tests::seenOn(Qt::white, imageOf(pixmap)), pixmap.width);
        }
    }
}

TEST_F(DesktopTrayItemTest, HostGetsTheImageAndNoNameThatItMayNotKnow) {
    // The program is installed while the panel runs: this process finds the icon, the panel's does
    // not and draws something else for the name.
    const QTemporaryDir themes;
    const QString icons = themes.filePath(QStringLiteral("hicolor/24x24/apps"));
    ASSERT_TRUE(QDir().mkpath(icons));
    QFile index(themes.filePath(QStringLiteral("hicolor/index.theme")));
    ASSERT_TRUE(index.open(QIODevice::WriteOnly));
    index.write("[Icon Theme]\nName=hicolor\nDirectories=24x24/apps\n[24x24/apps]\nSize=24\n");
    index.close();
    const QString name = QStringLiteral("local.vantle.Vantle-symbolic");
    ASSERT_TRUE(m_red.pixmap(24).save(icons + QLatin1Char('/') + name + QStringLiteral(".png")));
    const QStringList paths = QIcon::themeSearchPaths();
    QIcon::setThemeSearchPaths({themes.path()});
    QIcon::setThemeName(QStringLiteral("hicolor"));
    ASSERT_TRUE(QIcon::hasThemeIcon(name));

    FakeStatusNotifierWatcher watcher;
    watcher.appear();
    m_item->setImage(tests::square(Qt::black), true);
    ASSERT_TRUE(await([&] { return m_item->isShown(); }));
    EXPECT_EQ(watcher.property(QStringLiteral("IconName")), QString());
    EXPECT_FALSE(watcher.pixmaps().isEmpty());
    QIcon::setThemeName({});
    QIcon::setThemeSearchPaths(paths);
}

TEST_F(DesktopTrayItemTest, TrayThatComesLaterShowsIt) {
    m_item->setImage(m_red, false);
    // The toolkit may hear only now that the tray of the test before has gone.
    ASSERT_TRUE(await([&] { return !m_item->isShown(); }));
    tests::runFor(200);
    EXPECT_FALSE(m_item->isShown());
    EXPECT_TRUE(m_item->geometry().isEmpty());
    const Trayer tray;
    expectOnScreen(Qt::red);
}

TEST_F(DesktopTrayItemTest, TrayThatGoesAndComesBackShowsItAgain) {
    Trayer first;
    m_item->setImage(m_red, false);
    expectOnScreen(Qt::red);
    first.stop();
    ASSERT_TRUE(await([&] { return !m_item->isShown(); }));
    EXPECT_TRUE(m_item->geometry().isEmpty());
    EXPECT_EQ(m_shown, (QList<bool>{true, false}));
    m_item->setImage(m_blue, false);
    const Trayer second;
    expectOnScreen(Qt::blue);
    EXPECT_TRUE(m_shown.last());
}

TEST_F(DesktopTrayItemTest, LeftAndRightClickInAWindowTrayAreClicksAtTheirPlace) {
    const Trayer tray;
    m_item->setImage(m_red, false);
    expectOnScreen(Qt::red);
    ASSERT_TRUE(tests::run(QStringLiteral("xdotool mousemove ") + middleOfItem()));
    tests::runFor(100);
    ASSERT_TRUE(tests::run(QStringLiteral("xdotool click 1 click 3 click 2 click 4")));
    ASSERT_TRUE(await([&] { return m_clicks.size() == 2; }));
    tests::runFor(100);
    EXPECT_EQ(m_clicks.size(), 2);
    for (const QPoint& place : m_clicks)
        EXPECT_TRUE(m_item->geometry().contains(place));
}

TEST_F(DesktopTrayItemTest, DoubleClickIsOneClick) {
    const Trayer tray;
    m_item->setImage(m_red, false);
    expectOnScreen(Qt::red);
    ASSERT_TRUE(tests::run(QStringLiteral("xdotool mousemove ") + middleOfItem()));
    tests::runFor(100);
    ASSERT_TRUE(tests::run(QStringLiteral("xdotool click --repeat 2 --delay 30 1")));
    ASSERT_TRUE(await([&] { return !m_clicks.isEmpty(); }));
    tests::runFor(100);
    EXPECT_EQ(m_clicks.size(), 1);
}

TEST_F(DesktopTrayItemTest, WatcherThatIsThereIsPreferred) {
    const Trayer tray;
    FakeStatusNotifierWatcher watcher;
    watcher.appear();
    m_item.emplace(m_client.bus()); // with the watcher there from the start
    m_item->setImage(m_red, false);
    m_item->setToolTip(QStringLiteral("Vantle\nBuild"));
    ASSERT_TRUE(await([&] { return m_item->isShown(); }));
    tests::runFor(100);
    EXPECT_TRUE(m_item->geometry().isEmpty());
    EXPECT_TRUE(QApplication::topLevelWidgets().isEmpty()) << "a window for the other kind of tray";
    EXPECT_EQ(pixelsOf(watcher), kRedPixel);
    EXPECT_EQ(watcher.toolTip().title, QStringLiteral("Vantle"));
    EXPECT_EQ(watcher.toolTip().text, QStringLiteral("Build"));
    EXPECT_EQ(watcher.items.size(), 1);
}

TEST_F(DesktopTrayItemTest, ClicksOfAHostAreForwarded) {
    FakeStatusNotifierWatcher watcher;
    watcher.appear();
    m_item->setImage(m_red, false);
    ASSERT_TRUE(await([&] { return isShownBy(watcher); }));
    QCursor::setPos(15, 30);
    watcher.callItem(tests::kItemInterface, QStringLiteral("Activate"), {10, 20});
    watcher.callItem(tests::kItemInterface, QStringLiteral("ContextMenu"), {30, 40});
    ASSERT_TRUE(await([&] { return m_clicks.size() == 2; }));
    EXPECT_EQ(m_clicks, (QList<QPoint>{QPoint(10, 20), QPoint(30, 40)}));
}

TEST_F(DesktopTrayItemTest, HostThatGivesTheSamePlaceForEveryClickIsNotBelieved) {
    FakeStatusNotifierWatcher watcher;
    watcher.appear();
    m_item->setImage(m_red, false);
    ASSERT_TRUE(await([&] { return isShownBy(watcher); }));
    QCursor::setPos(1300, 10);
    watcher.callItem(tests::kItemInterface, QStringLiteral("Activate"), {0, 25});
    ASSERT_TRUE(await([&] { return m_clicks.size() == 1; }));
    EXPECT_EQ(m_clicks.first(), QPoint(1300, 10));
}

TEST_F(DesktopTrayItemTest, PlaceBeyondEveryScreenIsNotBelieved) {
    FakeStatusNotifierWatcher watcher;
    watcher.appear();
    m_item->setImage(m_red, false);
    ASSERT_TRUE(await([&] { return isShownBy(watcher); }));
    QCursor::setPos(15, 30);
    constexpr int kLeast = std::numeric_limits<int>::min();
    watcher.callItem(tests::kItemInterface, QStringLiteral("Activate"), {kLeast, kLeast});
    ASSERT_TRUE(await([&] { return m_clicks.size() == 1; }));
    EXPECT_EQ(m_clicks.first(), QPoint(15, 30));
}

TEST_F(DesktopTrayItemTest, ChangesOverWhenAWatcherComesAndBackWhenItGoes) {
    const Trayer tray;
    m_item->setImage(m_red, false);
    m_item->setToolTip(QStringLiteral("Vantle\nBuild"));
    expectOnScreen(Qt::red);

    FakeStatusNotifierWatcher watcher;
    watcher.appear();
    ASSERT_TRUE(await([&] { return isShownBy(watcher); }));
    EXPECT_EQ(pixelsOf(watcher), kRedPixel);
    EXPECT_EQ(watcher.toolTip().text, QStringLiteral("Build"));

    m_item->setImage(m_blue, false);
    EXPECT_EQ(pixelsOf(watcher), kBluePixel);
    watcher.disappear();
    ASSERT_TRUE(await([&] { return m_item->isShown() && !m_item->geometry().isEmpty(); }));
    expectOnScreen(Qt::blue);

    FakeStatusNotifierWatcher next;
    next.appear();
    ASSERT_TRUE(await([&] { return isShownBy(next); }));
    EXPECT_EQ(pixelsOf(next), kBluePixel);
    EXPECT_EQ(next.items.size(), 1);
}

TEST_F(DesktopTrayItemTest, HostsAreToldWhenTheBarsTextChangesItsColour) {
    FakeStatusNotifierWatcher watcher;
    watcher.appear();
    m_item->setImage(tests::square(Qt::black), true);
    ASSERT_TRUE(await([&] { return m_item->isShown(); }));
    const int before = watcher.newIcons;
    QPalette palette = m_palette;
    palette.setColor(QPalette::WindowText, Qt::blue);
    QGuiApplication::setPalette(palette);
    ASSERT_TRUE(await([&] { return watcher.newIcons == before + 1; }));
    EXPECT_EQ(pixelsOf(watcher), kBluePixel);
}

TEST_F(DesktopTrayItemTest, ImageThatIsNoTemplateKeepsItsColours) {
    FakeStatusNotifierWatcher watcher;
    watcher.appear();
    m_item->setImage(m_red, true);
    m_item->setImage(m_red, false);
    ASSERT_TRUE(await([&] { return m_item->isShown(); }));
    EXPECT_EQ(pixelsOf(watcher), kRedPixel);
    EXPECT_EQ(watcher.property(QStringLiteral("IconName")), QString());
}

TEST(DesktopTrayItem, NeedsNoBus) {
    const Trayer tray;
    DesktopTrayItem item(tests::noBus());
    item.setImage(tests::square(Qt::red), false);
    EXPECT_TRUE(await([&] { return item.isShown() && !item.geometry().isEmpty(); }));
}

} // namespace
} // namespace vantle
