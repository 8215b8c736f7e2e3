// What every tray item promises.
#include "contract/Contract.h"
#include "fakes/FakeTrayItem.h"
#include "platform/tray/DesktopTrayItem.h"
#include "platform/tray/FakeStatusNotifierWatcher.h"
#include "platform/tray/Images.h"
#include "platform/tray/Trayer.h"
#include "support/Await.h"

#include <QCursor>

#include <optional>

namespace vantle {
namespace {

using tests::await;

/// A desktop whose tray comes and goes. There is none at first.
class TrayWorld {
public:
    virtual ~TrayWorld() = default;
    [[nodiscard]] virtual TrayItem& item() = 0;
    virtual void startTray() = 0;
    virtual void endTray() = 0;
    /// Clicks on the item; the place is where it stands, as far as the tray tells.
    virtual void click() = 0;
};

class FakeWorld final : public TrayWorld {
public:
    FakeWorld() {
        m_item.setShown(false);
        m_item.forgetImage();
    }
    [[nodiscard]] TrayItem& item() override { return m_item; }
    void startTray() override {
        m_item.setShown(true);
        m_item.moveTo({1400, 0, 24, 24});
    }
    void endTray() override {
        m_item.place = {};
        m_item.setShown(false);
    }
    void click() override { m_item.click(m_item.place.center()); }

private:
    fakes::FakeTrayItem m_item;
};

/// A tray that takes windows in.
class XEmbedWorld final : public TrayWorld {
public:
    [[nodiscard]] TrayItem& item() override { return m_item; }
    void startTray() override { m_tray.emplace(); }
    void endTray() override { m_tray.reset(); }
    void click() override {
        const QPoint middle = m_item.geometry().center();
        EXPECT_TRUE(
            tests::run(QStringLiteral("xdotool mousemove %1 %2").arg(middle.x()).arg(middle.y())));
        tests::runFor(100);
        EXPECT_TRUE(tests::run(QStringLiteral("xdotool click 1")));
    }

private:
    tests::BusClient m_client;
    DesktopTrayItem m_item{m_client.bus()};
    std::optional<tests::Trayer> m_tray;
};

/// A tray behind the session bus.
class NotifierWorld final : public TrayWorld {
public:
    [[nodiscard]] TrayItem& item() override { return m_item; }
    void startTray() override {
        m_watcher.emplace();
        m_watcher->appear();
    }
    void endTray() override { m_watcher->disappear(); }
    void click() override {
        QCursor::setPos(705, 12);
        m_watcher->callItem(tests::kItemInterface, QStringLiteral("Activate"), {700, 10});
    }

private:
    tests::BusClient m_client;
    DesktopTrayItem m_item{m_client.bus()};
    std::optional<tests::FakeStatusNotifierWatcher> m_watcher;
};

class TrayItemContract : public contract::Contract<TrayWorld> {
protected:
    TrayItemContract() {
        QObject::connect(&item(), &TrayItem::shownChanged, [this] { m_shown << item().isShown(); });
        QObject::connect(&item(), &TrayItem::clicked, [this](QPoint place) { m_clicks << place; });
    }
    ~TrayItemContract() override {
        (void)tests::run(QStringLiteral("xdotool mousemove 20 500")); // off the tray
    }
    [[nodiscard]] TrayItem& item() const { return world().item(); }
    void startShown() {
        item().setImage(m_image, false);
        world().startTray();
        ASSERT_TRUE(await([this] { return item().isShown(); }));
    }

    const QIcon m_image = tests::square(Qt::red);
    QList<bool> m_shown;
    QList<QPoint> m_clicks;
};

INSTANTIATE_TEST_SUITE_P(, TrayItemContract,
                         testing::Values(contract::maker<TrayWorld, FakeWorld>("Fake"),
                                         contract::maker<TrayWorld, XEmbedWorld>("XEmbed"),
                                         contract::maker<TrayWorld, NotifierWorld>("Notifier")),
                         contract::kByName);

TEST_P(TrayItemContract, IsShownBySomeTrayAloneAndTellsWhenOneComesAndGoes) {
    EXPECT_FALSE(item().isShown());
    startShown();
    world().endTray();
    EXPECT_TRUE(await([this] { return !item().isShown(); }));
    EXPECT_EQ(m_shown, (QList<bool>{true, false}));
    EXPECT_TRUE(item().geometry().isEmpty());
    world().startTray();
    EXPECT_TRUE(await([this] { return item().isShown(); }));
}

TEST_P(TrayItemContract, IsShownWithItsFirstImageAndNotBefore) {
    world().startTray();
    tests::runFor(200);
    EXPECT_FALSE(item().isShown());
    item().setImage(m_image, false);
    EXPECT_TRUE(await([this] { return item().isShown(); }));
}

TEST_P(TrayItemContract, ClickIsToldWithThePlaceOfTheItemWhereThatIsKnown) {
    startShown();
    EXPECT_TRUE(await([this] { return !item().isPlacePending(); }));
    world().click();
    ASSERT_TRUE(await([this] { return m_clicks.size() == 1; }));
    const QRect place = item().geometry();
    EXPECT_TRUE(place.isEmpty() || place.contains(m_clicks.first()));
}

} // namespace
} // namespace vantle
