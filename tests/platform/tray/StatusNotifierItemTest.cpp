#include "platform/tray/StatusNotifierItem.h"

#include "platform/tray/FakeStatusNotifierWatcher.h"
#include "platform/tray/Images.h"

#include <QDBusArgument>
#include <QElapsedTimer>

#include <gtest/gtest.h>

namespace vantle {
namespace {

using tests::await;
using tests::BusClient;
using tests::FakeStatusNotifierWatcher;

class StatusNotifierItemTest : public testing::Test {
protected:
    StatusNotifierItemTest() {
        QObject::connect(&m_item, &StatusNotifierItem::clicked,
                         [this](QPoint place) { m_clicks << place; });
        m_item.setImage(m_red);
    }
    void appearAndTake() {
        m_watcher.appear();
        ASSERT_TRUE(await([&] { return m_item.isShown(); }));
    }
    void catchUp() { tests::runFor(100); }

    const QIcon m_red = tests::square(Qt::red, {16});
    const QIcon m_blue = tests::square(Qt::blue, {16});
    FakeStatusNotifierWatcher m_watcher;
    BusClient m_client;
    StatusNotifierItem m_item{m_client.bus()};
    QList<QPoint> m_clicks;
};

QByteArray pixelsOf(const TrayPixmaps& pixmaps) { return pixmaps.value(0).argb.first(4); }

TEST_F(StatusNotifierItemTest, IsAnnouncedUnderItsConnectionsName) {
    appearAndTake();
    EXPECT_EQ(m_watcher.items, QStringList{m_client.bus().baseService()});
    EXPECT_EQ(m_item.hasWatcher(), true);
}

TEST_F(StatusNotifierItemTest, IsAnnouncedWithItsFirstImageAndNotBefore) {
    m_watcher.appear();
    BusClient client;
    StatusNotifierItem bare(client.bus());
    ASSERT_TRUE(await([&] { return bare.hasWatcher() == true && m_item.isShown(); }));
    catchUp();
    EXPECT_FALSE(m_watcher.items.contains(client.bus().baseService()));
    bare.setImage(m_blue);
    EXPECT_TRUE(await([&] { return bare.isShown(); }));
    bare.setImage(m_red);
    catchUp();
    EXPECT_EQ(m_watcher.items.count(client.bus().baseService()), 1);
}

TEST_F(StatusNotifierItemTest, TellsThatThereIsNoWatcherOnceTheBusHasSaidSo) {
    EXPECT_EQ(m_item.hasWatcher(), std::nullopt);
    EXPECT_TRUE(await([&] { return m_item.hasWatcher().has_value(); }));
    EXPECT_EQ(m_item.hasWatcher(), false);
    EXPECT_FALSE(m_item.isShown());
}

TEST_F(StatusNotifierItemTest, WatcherThatComesLateIsFound) {
    ASSERT_TRUE(await([&] { return m_item.hasWatcher() == false; }));
    appearAndTake();
    EXPECT_EQ(m_watcher.items.size(), 1);
}

TEST_F(StatusNotifierItemTest, WatcherThatGoesAndComesBackIsToldAgain) {
    appearAndTake();
    m_watcher.disappear();
    ASSERT_TRUE(await([&] { return m_item.hasWatcher() == false; }));
    EXPECT_FALSE(m_item.isShown());

    FakeStatusNotifierWatcher next;
    next.appear();
    EXPECT_TRUE(await([&] { return m_item.isShown(); }));
    EXPECT_EQ(next.items, QStringList{m_client.bus().baseService()});
    EXPECT_EQ(pixelsOf(next.pixmaps()), QByteArray::fromHex("ffff0000"));
}

TEST_F(StatusNotifierItemTest, IsNotShownWithoutAHost) {
    m_watcher.setHost(false);
    m_watcher.appear();
    ASSERT_TRUE(await([&] { return !m_watcher.items.isEmpty(); }));
    catchUp();
    EXPECT_FALSE(m_item.isShown());
    m_watcher.setHost(true);
    EXPECT_TRUE(await([&] { return m_item.isShown(); }));
    m_watcher.setHost(false);
    EXPECT_TRUE(await([&] { return !m_item.isShown(); }));
}

TEST_F(StatusNotifierItemTest, IsNotShownWhereTheWatcherRefusesIt) {
    m_watcher.refuses = true;
    m_watcher.appear();
    ASSERT_TRUE(await([&] { return m_item.hasWatcher() == true; }));
    catchUp();
    EXPECT_FALSE(m_item.isShown());
}

TEST_F(StatusNotifierItemTest, ChangesOfBeingShownAreToldOnce) {
    QList<bool> told;
    QObject::connect(&m_item, &StatusNotifierItem::shownChanged, [&] { told << m_item.isShown(); });
    appearAndTake();
    m_watcher.disappear();
    ASSERT_TRUE(await([&] { return !m_item.isShown(); }));
    EXPECT_EQ(told, (QList<bool>{true, false}));
}

TEST_F(StatusNotifierItemTest, EveryPropertyIsThereAtOnce) {
    appearAndTake();
    m_item.setToolTip(QStringLiteral("Vantle\nBuild, 12 min"));
    const auto reply = m_watcher.callItem(QStringLiteral("org.freedesktop.DBus.Properties"),
                                          QStringLiteral("GetAll"), {tests::kItemInterface});
    ASSERT_EQ(reply.type(), QDBusMessage::ReplyMessage) << qPrintable(reply.errorMessage());
    const auto all = qdbus_cast<QVariantMap>(reply.arguments().value(0));
    EXPECT_EQ(all.value(QStringLiteral("Category")), QStringLiteral("ApplicationStatus"));
    EXPECT_EQ(all.value(QStringLiteral("Id")), QStringLiteral("local.vantle.Vantle"));
    EXPECT_EQ(all.value(QStringLiteral("Title")), QStringLiteral("Vantle"));
    EXPECT_EQ(all.value(QStringLiteral("Status")), QStringLiteral("Active"));
    EXPECT_EQ(all.value(QStringLiteral("IconName")), QString());
    EXPECT_EQ(all.value(QStringLiteral("ItemIsMenu")), false);
    EXPECT_EQ(pixelsOf(qdbus_cast<TrayPixmaps>(all.value(QStringLiteral("IconPixmap")))),
              QByteArray::fromHex("ffff0000"));
    const auto toolTip = qdbus_cast<TrayToolTip>(all.value(QStringLiteral("ToolTip")));
    EXPECT_EQ(toolTip.title, QStringLiteral("Vantle"));
    EXPECT_EQ(toolTip.text, QStringLiteral("Build, 12 min"));
}

TEST_F(StatusNotifierItemTest, NoPropertyThatHostsAskForIsAnError) {
    appearAndTake();
    for (const char* name :
         {"Category", "Id", "Title", "Status", "WindowId", "IconThemePath", "Menu", "ItemIsMenu",
          "IconName", "IconPixmap", "OverlayIconName", "OverlayIconPixmap", "AttentionIconName",
          "AttentionIconPixmap", "AttentionMovieName", "ToolTip"}) {
        const auto reply = m_watcher.callItem(QStringLiteral("org.freedesktop.DBus.Properties"),
                                              QStringLiteral("Get"),
                                              {tests::kItemInterface, QString::fromLatin1(name)});
        EXPECT_EQ(reply.type(), QDBusMessage::ReplyMessage) << name;
    }
}

TEST_F(StatusNotifierItemTest, TypesAreTheProtocols) {
    appearAndTake();
    const auto reply = m_watcher.callItem(QStringLiteral("org.freedesktop.DBus.Introspectable"),
                                          QStringLiteral("Introspect"), {});
    const QString xml = reply.arguments().value(0).toString();
    for (const auto& declared :
         {QStringLiteral("name=\"IconPixmap\" type=\"a(iiay)\""),
          QStringLiteral("name=\"ToolTip\" type=\"(sa(iiay)ss)\""),
          QStringLiteral("name=\"OverlayIconPixmap\" type=\"a(iiay)\""),
          QStringLiteral("name=\"AttentionIconPixmap\" type=\"a(iiay)\""),
          QStringLiteral("name=\"WindowId\" type=\"i\""),
          QStringLiteral("name=\"Menu\" type=\"o\""), QStringLiteral("<signal name=\"NewIcon\">"),
          QStringLiteral("<method name=\"Scroll\">")})
        EXPECT_TRUE(xml.contains(declared)) << qPrintable(declared) << "\n" << qPrintable(xml);
}

TEST_F(StatusNotifierItemTest, NewImageIsToldOnceAndReadableAtThatMoment) {
    appearAndTake();
    m_item.setImage(m_blue);
    ASSERT_TRUE(await([&] { return m_watcher.newIcons == 1; }));
    EXPECT_EQ(pixelsOf(m_watcher.pixmaps()), QByteArray::fromHex("ff0000ff"));
    m_item.setImage(m_blue);
    catchUp();
    EXPECT_EQ(m_watcher.newIcons, 1) << "the same image again";
    m_item.setImage(m_red);
    ASSERT_TRUE(await([&] { return m_watcher.newIcons == 2; }));
    EXPECT_EQ(pixelsOf(m_watcher.pixmaps()), QByteArray::fromHex("ffff0000"));
}

TEST_F(StatusNotifierItemTest, MoreImagesThanAreKeptStayRight) {
    appearAndTake();
    QList<QIcon> images;
    for (int i = 0; i < 40; ++i)
        images << tests::square(QColor(i, 0, 0), {16});
    for (int round = 0; round < 2; ++round) {
        for (int i = 0; i < images.size(); ++i) {
            m_item.setImage(images[i]);
            const QByteArray expected("\xff" + QByteArray(1, static_cast<char>(i)) +
                                      QByteArray(2, '\0'));
            ASSERT_EQ(pixelsOf(m_watcher.pixmaps()), expected);
        }
    }
}

TEST_F(StatusNotifierItemTest, ToolTipsTextIsNoMarkup) {
    appearAndTake();
    m_item.setToolTip(QStringLiteral("Vantle\nmy <b>app</b> & more"));
    ASSERT_TRUE(await([&] { return m_watcher.newToolTips == 1; }));
    EXPECT_EQ(m_watcher.toolTip().text, QStringLiteral("my &lt;b&gt;app&lt;/b&gt; &amp; more"));
}

TEST_F(StatusNotifierItemTest, LeftAndRightClickAreClicksAtTheirPlace) {
    appearAndTake();
    m_watcher.callItem(tests::kItemInterface, QStringLiteral("Activate"), {1200, 12});
    m_watcher.callItem(tests::kItemInterface, QStringLiteral("ContextMenu"), {1201, 13});
    ASSERT_TRUE(await([&] { return m_clicks.size() == 2; }));
    EXPECT_EQ(m_clicks, (QList<QPoint>{QPoint(1200, 12), QPoint(1201, 13)}));
}

TEST_F(StatusNotifierItemTest, MiddleClickAndWheelAreAnsweredAndDoNothing) {
    appearAndTake();
    for (const auto& [method, arguments] :
         {std::pair(QStringLiteral("SecondaryActivate"), QVariantList{1, 2}),
          std::pair(QStringLiteral("Scroll"), QVariantList{120, QStringLiteral("vertical")})})
        EXPECT_EQ(m_watcher.callItem(tests::kItemInterface, method, arguments).type(),
                  QDBusMessage::ReplyMessage);
    catchUp();
    EXPECT_TRUE(m_clicks.isEmpty());
}

TEST(StatusNotifierItem, MissingBusIsAnAnswerAtOnce) {
    QElapsedTimer timer;
    timer.start();
    StatusNotifierItem item(tests::noBus());
    item.setImage(tests::square(Qt::red));
    item.setToolTip(QStringLiteral("Vantle"));
    EXPECT_LT(timer.elapsed(), 100);
    EXPECT_EQ(item.hasWatcher(), false);
    EXPECT_FALSE(item.isShown());
}

} // namespace
} // namespace vantle
