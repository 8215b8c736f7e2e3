// What every source of the wishes for contrast and larger text promises.
#include "contract/Contract.h"
#include "fakes/FakeReadingWishes.h"
#include "platform/session/DesktopReadingWishes.h"
#include "platform/session/FakePortal.h"
#include "support/Await.h"
#include "support/Text.h"

#include <optional>

namespace vantle {
namespace {

using tests::text;

/// A desktop with settings for both.
class ReadingWorld {
public:
    virtual ~ReadingWorld() = default;
    /// The source, made at the first call.
    [[nodiscard]] virtual ReadingWishes& wishes() = 0;
    /// The user sets them.
    virtual void setMoreContrast(bool more) = 0;
    virtual void setTextScale(double factor) = 0;
};

class FakeWorld final : public ReadingWorld {
public:
    [[nodiscard]] ReadingWishes& wishes() override { return m_wishes; }
    void setMoreContrast(bool more) override { m_wishes.setMoreContrast(more); }
    void setTextScale(double factor) override { m_wishes.setTextScale(factor); }

private:
    fakes::FakeReadingWishes m_wishes;
};

/// A desktop with a settings portal, and a key for contrast.
class PortalWorld : public ReadingWorld {
public:
    PortalWorld(const char* space, const char* key, QVariant more, QVariant usual)
        : m_space(text(space))
        , m_key(text(key))
        , m_more(std::move(more))
        , m_usual(std::move(usual)) {
        m_portal.values[m_space + QLatin1Char(' ') + m_key] = m_usual;
        m_portal.values[text("org.gnome.desktop.interface text-scaling-factor")] = 1.0;
        m_portal.appear();
    }
    [[nodiscard]] ReadingWishes& wishes() override {
        if (!m_wishes) {
            m_wishes.emplace(m_client.bus());
            EXPECT_TRUE(tests::await([this] { return m_portal.asked >= 3; }));
        }
        return *m_wishes;
    }
    void setMoreContrast(bool more) override {
        m_portal.change(m_space, m_key, more ? m_more : m_usual);
    }
    void setTextScale(double factor) override {
        m_portal.change(text("org.gnome.desktop.interface"), text("text-scaling-factor"), factor);
    }

private:
    const QString m_space;
    const QString m_key;
    const QVariant m_more;
    const QVariant m_usual;
    tests::FakePortal m_portal;
    tests::BusClient m_client;
    std::optional<DesktopReadingWishes> m_wishes;
};

class AppearanceWorld final : public PortalWorld {
public:
    AppearanceWorld() : PortalWorld("org.freedesktop.appearance", "contrast", 1U, 0U) {}
};

class GnomeWorld final : public PortalWorld {
public:
    GnomeWorld() : PortalWorld("org.gnome.desktop.a11y.interface", "high-contrast", true, false) {}
};

class ReadingWishesContract : public contract::Contract<ReadingWorld> {
protected:
    [[nodiscard]] bool becomes(bool moreContrast, double textScale) {
        return tests::await([=, this] {
            const ReadingWishes& wishes = world().wishes();
            return wishes.moreContrast() == moreContrast && wishes.textScale() == textScale;
        });
    }
};

INSTANTIATE_TEST_SUITE_P(
    , ReadingWishesContract,
    testing::Values(contract::maker<ReadingWorld, FakeWorld>("Fake"),
                    contract::maker<ReadingWorld, AppearanceWorld>("PortalAppearance"),
                    contract::maker<ReadingWorld, GnomeWorld>("PortalGnome")),
    contract::kByName);

TEST_P(ReadingWishesContract, NothingIsWishedForUnlessTheUserDoes) {
    EXPECT_FALSE(world().wishes().moreContrast());
    EXPECT_EQ(world().wishes().textScale(), 1.0);
}

TEST_P(ReadingWishesContract, KnowsTheWishesFromBeforeTheProgramStarted) {
    world().setMoreContrast(true);
    world().setTextScale(1.5);
    EXPECT_TRUE(becomes(true, 1.5));
}

TEST_P(ReadingWishesContract, FollowsBothWishesBothWaysAndTellsOfEach) {
    int changes = 0;
    QObject::connect(&world().wishes(), &ReadingWishes::changed, [&changes] { ++changes; });
    EXPECT_TRUE(becomes(false, 1.0));
    world().setMoreContrast(true);
    EXPECT_TRUE(becomes(true, 1.0));
    world().setTextScale(1.25);
    EXPECT_TRUE(becomes(true, 1.25));
    world().setMoreContrast(false);
    EXPECT_TRUE(becomes(false, 1.25));
    world().setTextScale(1.0);
    EXPECT_TRUE(becomes(false, 1.0));
    EXPECT_EQ(changes, 4);
}

} // namespace
} // namespace vantle
