#include "platform/tray/FakeStatusNotifierWatcher.h"
#include "platform/tray/Images.h"
#include "platform/tray/StatusNotifierItem.h"

#include <QDBusArgument>

#include <gtest/gtest.h>

#include <memory>

namespace vantle {
namespace {

using tests::await;

QList<TrayMenuEntry> lines(const QStringList& texts, QStringList* chosen = nullptr) {
    QList<TrayMenuEntry> entries;
    for (const QString& text : texts)
        entries << TrayMenuEntry{text, [text, chosen] {
                                     if (chosen != nullptr) chosen->append(text);
                                 }};
    return entries;
}

/// What a host hears of the menu while it shows it.
class Listener final : public QObject {
    Q_OBJECT

public:
    explicit Listener(QDBusConnection bus) {
        const QString interface = QStringLiteral("com.canonical.dbusmenu");
        bus.connect({}, {}, interface, QStringLiteral("ItemsPropertiesUpdated"), this,
                    SLOT(readLines(QDBusMessage)));
        bus.connect({}, {}, interface, QStringLiteral("LayoutUpdated"), this,
                    SLOT(readLayout(uint, int)));
    }
    QList<TrayMenuLine> updated;
    QList<uint> revisions;

public Q_SLOTS:
    void readLines(const QDBusMessage& message) {
        updated = qdbus_cast<QList<TrayMenuLine>>(message.arguments().value(0));
    }
    void readLayout(uint revision, int) { revisions << revision; }
};

class TrayMenuTest : public testing::Test {
protected:
    TrayMenuTest() {
        m_item.setMenu(lines(m_texts, &m_chosen));
        m_item.setImage(tests::square(Qt::red, {16}));
        m_watcher.appear();
        EXPECT_TRUE(await([&] { return m_item.isShown(); }));
    }
    [[nodiscard]] QStringList labels() {
        QStringList labels;
        for (const TrayMenuNode& line : m_watcher.menu().children)
            labels << line.properties.value(QStringLiteral("label")).toString();
        return labels;
    }

    const QStringList m_texts{QStringLiteral("Open"), QStringLiteral("Start"),
                              QStringLiteral("Quit")};
    QStringList m_chosen;
    tests::FakeStatusNotifierWatcher m_watcher;
    tests::BusClient m_client;
    tests::BusClient m_other;
    StatusNotifierItem m_item{m_client.bus()};
};

TEST_F(TrayMenuTest, HostReadsTheLinesInTheirOrder) {
    const TrayMenuNode menu = m_watcher.menu();
    EXPECT_EQ(menu.id, 0);
    EXPECT_EQ(menu.properties.value(QStringLiteral("children-display")), QStringLiteral("submenu"));
    EXPECT_EQ(labels(), m_texts);
    for (const TrayMenuNode& line : menu.children) {
        EXPECT_EQ(line.properties.value(QStringLiteral("enabled")), true);
        EXPECT_EQ(line.properties.value(QStringLiteral("visible")), true);
    }
}

TEST_F(TrayMenuTest, LeftClickStaysTheItemsOwn) {
    EXPECT_EQ(m_watcher.property(QStringLiteral("ItemIsMenu")), false);
}

TEST_F(TrayMenuTest, ChosenLineRunsAfterTheHostHasItsAnswer) {
    EXPECT_EQ(m_watcher.clickLine(2).type(), QDBusMessage::ReplyMessage);
    EXPECT_TRUE(await([&] { return m_chosen == QStringList{m_texts[1]}; }));
}

TEST_F(TrayMenuTest, SeveralEventsInOneCallAreAllTaken) {
    const QDBusVariant nothing{QString()};
    const QList<TrayMenuEvent> events{{1, QStringLiteral("clicked"), nothing, 0},
                                      {3, QStringLiteral("hovered"), nothing, 0},
                                      {9, QStringLiteral("clicked"), nothing, 0},
                                      {3, QStringLiteral("clicked"), nothing, 0}};
    const auto reply =
        m_watcher.callMenu(QStringLiteral("EventGroup"), {QVariant::fromValue(events)});
    EXPECT_EQ(qdbus_cast<QList<int>>(reply.arguments().value(0)), QList<int>{9});
    EXPECT_TRUE(await([&] { return m_chosen == QStringList({m_texts[0], m_texts[2]}); }));
}

TEST_F(TrayMenuTest, OpeningAndHoveringChooseNothing) {
    for (const char* type : {"opened", "closed", "hovered"})
        m_watcher.callMenu(
            QStringLiteral("Event"),
            {1, QString::fromLatin1(type), QVariant::fromValue(QDBusVariant(QString())), 0U});
    m_watcher.clickLine(0);
    tests::runFor(50);
    EXPECT_TRUE(m_chosen.isEmpty());
}

TEST_F(TrayMenuTest, NewTextIsToldToAHostThatShowsTheMenu) {
    const Listener host(m_other.bus());
    m_item.setMenu(lines({m_texts[0], QStringLiteral("Stop"), m_texts[2]}));
    ASSERT_TRUE(await([&] { return !host.updated.isEmpty(); }));
    ASSERT_EQ(host.updated.size(), 1);
    EXPECT_EQ(host.updated.first().id, 2);
    EXPECT_EQ(host.updated.first().properties.value(QStringLiteral("label")),
              QStringLiteral("Stop"));
    EXPECT_TRUE(host.revisions.isEmpty());
    EXPECT_EQ(labels().value(1), QStringLiteral("Stop"));
}

TEST_F(TrayMenuTest, OtherNumberOfLinesIsANewLayout) {
    const Listener host(m_other.bus());
    m_item.setMenu(lines({m_texts[0]}));
    ASSERT_TRUE(await([&] { return !host.revisions.isEmpty(); }));
    const auto reply = m_watcher.callMenu(QStringLiteral("GetLayout"), {0, -1, QStringList()});
    EXPECT_EQ(reply.arguments().value(0).toUInt(), host.revisions.last());
    EXPECT_EQ(labels(), QStringList{m_texts[0]});
}

TEST_F(TrayMenuTest, HostGetsThePropertiesThatItNames) {
    const auto reply =
        m_watcher.callMenu(QStringLiteral("GetGroupProperties"),
                           {QVariant::fromValue(QList<int>{3, 1}),
                            QStringList{QStringLiteral("label"), QStringLiteral("icon-name")}});
    const auto answered = qdbus_cast<QList<TrayMenuLine>>(reply.arguments().value(0));
    ASSERT_EQ(answered.size(), 2);
    for (const TrayMenuLine& line : answered)
        EXPECT_EQ(line.properties, (QVariantMap{{QStringLiteral("label"), m_texts[line.id - 1]}}));
    const auto one =
        m_watcher.callMenu(QStringLiteral("GetProperty"), {1, QStringLiteral("label")});
    EXPECT_EQ(qvariant_cast<QDBusVariant>(one.arguments().value(0)).variant(), m_texts[0]);
}

TEST_F(TrayMenuTest, DepthOfZeroIsTheMenuWithoutItsLines) {
    const auto reply = m_watcher.callMenu(QStringLiteral("GetLayout"), {0, 0, QStringList()});
    EXPECT_TRUE(qdbus_cast<TrayMenuNode>(reply.arguments().value(1)).children.isEmpty());
}

TEST_F(TrayMenuTest, LineThatIsNotThereIsAnErrorAndNoMore) {
    EXPECT_EQ(m_watcher.clickLine(4).type(), QDBusMessage::ErrorMessage);
    for (const auto& [method, arguments] :
         {std::pair(QStringLiteral("GetLayout"), QVariantList{-1, -1, QStringList()}),
          std::pair(QStringLiteral("GetProperty"), QVariantList{4, QStringLiteral("label")}),
          std::pair(QStringLiteral("GetProperty"), QVariantList{1, QStringLiteral("shortcut")}),
          std::pair(QStringLiteral("AboutToShow"), QVariantList{17})})
        EXPECT_EQ(m_watcher.callMenu(method, arguments).type(), QDBusMessage::ErrorMessage)
            << qPrintable(method);
    EXPECT_EQ(labels(), m_texts);
}

TEST_F(TrayMenuTest, NothingHasToBeReadAgainBeforeItIsShown) {
    const auto one = m_watcher.callMenu(QStringLiteral("AboutToShow"), {0});
    EXPECT_EQ(one.arguments(), QVariantList{false});
    const auto group = m_watcher.callMenu(QStringLiteral("AboutToShowGroup"),
                                          {QVariant::fromValue(QList<int>{0, 1, 8})});
    EXPECT_EQ(qdbus_cast<QList<int>>(group.arguments().value(0)), QList<int>());
    EXPECT_EQ(qdbus_cast<QList<int>>(group.arguments().value(1)), QList<int>{8});
}

TEST_F(TrayMenuTest, TypesAreTheProtocols) {
    const auto reply = m_watcher.callItem(QStringLiteral("org.freedesktop.DBus.Introspectable"),
                                          QStringLiteral("Introspect"), {}, m_watcher.menuPath());
    const QString xml = reply.arguments().value(0).toString();
    for (const char* declared :
         {"<interface name=\"com.canonical.dbusmenu\">", "type=\"(ia{sv}av)\" direction=\"out\"",
          "type=\"a(ia{sv})\" direction=\"out\"", "type=\"a(isvu)\" direction=\"in\"",
          "type=\"a(ias)\"", "name=\"Version\" type=\"u\"", "name=\"Status\" type=\"s\"",
          "name=\"TextDirection\" type=\"s\"", "name=\"IconThemePath\" type=\"as\""})
        EXPECT_TRUE(xml.contains(QLatin1String(declared))) << declared << "\n" << qPrintable(xml);
}

TEST_F(TrayMenuTest, UnderscoreInATextIsNoMnemonic) {
    m_item.setMenu(lines({QStringLiteral("my_app")}));
    EXPECT_EQ(labels(), QStringList{QStringLiteral("my__app")});
}

TEST_F(TrayMenuTest, ItemWithoutAMenuSaysSo) {
    tests::BusClient client;
    StatusNotifierItem bare(client.bus());
    bare.setImage(tests::square(Qt::blue, {16}));
    ASSERT_TRUE(await([&] { return bare.isShown(); }));
    EXPECT_EQ(m_watcher.menuPath(), QStringLiteral("/NO_DBUSMENU"));
}

} // namespace
} // namespace vantle

#include "TrayMenuTest.moc"
