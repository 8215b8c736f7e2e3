// What every source of the wish for less movement promises.
#include "contract/Contract.h"
#include "fakes/FakeReducedMotion.h"
#include "platform/session/DesktopReducedMotion.h"
#include "platform/session/FakePortal.h"
#include "support/Await.h"
#include "support/Text.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QTemporaryDir>

#include <optional>

namespace vantle {
namespace {

using tests::text;

/// A desktop with a switch for animations.
class MotionWorld {
public:
    virtual ~MotionWorld() = default;
    /// The source, made at the first call.
    [[nodiscard]] virtual ReducedMotion& motion() = 0;
    /// The user sets the switch.
    virtual void setReduced(bool reduced) = 0;
};

class FakeWorld final : public MotionWorld {
public:
    [[nodiscard]] ReducedMotion& motion() override { return m_motion; }
    void setReduced(bool reduced) override { m_motion.isOn = reduced; }

private:
    fakes::FakeReducedMotion m_motion;
};

/// A desktop without a portal, which keeps the switch in a file.
class FileWorld : public MotionWorld {
public:
    FileWorld(const char* file, QByteArray reduced, QByteArray usual)
        : m_file(m_directory.filePath(text(file)))
        , m_reduced(std::move(reduced))
        , m_usual(std::move(usual)) {}
    [[nodiscard]] ReducedMotion& motion() override {
        if (!m_motion) m_motion.emplace(tests::noBus(), m_directory.path());
        return *m_motion;
    }
    void setReduced(bool reduced) override {
        QDir().mkpath(QFileInfo(m_file).path());
        QSaveFile file(m_file); // as settings programs write
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(reduced ? m_reduced : m_usual);
        ASSERT_TRUE(file.commit());
    }

private:
    const QTemporaryDir m_directory;
    const QString m_file;
    const QByteArray m_reduced;
    const QByteArray m_usual;
    std::optional<DesktopReducedMotion> m_motion;
};

class KdeWorld final : public FileWorld {
public:
    KdeWorld()
        : FileWorld("kdeglobals", "[KDE]\nAnimationDurationFactor=0\n",
                    "[KDE]\nAnimationDurationFactor=1\n") {}
};

class GtkWorld final : public FileWorld {
public:
    GtkWorld()
        : FileWorld("gtk-4.0/settings.ini", "[Settings]\ngtk-enable-animations=false\n",
                    "[Settings]\ngtk-enable-animations=true\n") {}
};

/// A desktop with a settings portal that knows one of the two switches.
class PortalWorld : public MotionWorld {
public:
    PortalWorld(const char* space, const char* key, QVariant reduced, QVariant usual)
        : m_space(text(space))
        , m_key(text(key))
        , m_reduced(std::move(reduced))
        , m_usual(std::move(usual)) {
        m_portal.values[m_space + QLatin1Char(' ') + m_key] = m_usual;
        m_portal.appear();
    }
    [[nodiscard]] ReducedMotion& motion() override {
        if (!m_motion) {
            m_motion.emplace(m_client.bus(), m_directory.path());
            EXPECT_TRUE(tests::await([this] { return m_portal.asked >= 2; }));
        }
        return *m_motion;
    }
    void setReduced(bool reduced) override {
        m_portal.change(m_space, m_key, reduced ? m_reduced : m_usual);
    }

private:
    const QTemporaryDir m_directory;
    const QString m_space;
    const QString m_key;
    const QVariant m_reduced;
    const QVariant m_usual;
    tests::FakePortal m_portal;
    tests::BusClient m_client;
    std::optional<DesktopReducedMotion> m_motion;
};

class AppearanceWorld final : public PortalWorld {
public:
    AppearanceWorld() : PortalWorld("org.freedesktop.appearance", "reduced-motion", 1U, 0U) {}
};

class GnomeWorld final : public PortalWorld {
public:
    GnomeWorld() : PortalWorld("org.gnome.desktop.interface", "enable-animations", false, true) {}
};

class ReducedMotionContract : public contract::Contract<MotionWorld> {
protected:
    [[nodiscard]] bool becomes(bool reduced) {
        return tests::await([=, this] { return world().motion().enabled() == reduced; });
    }
};

INSTANTIATE_TEST_SUITE_P(
    , ReducedMotionContract,
    testing::Values(contract::maker<MotionWorld, FakeWorld>("Fake"),
                    contract::maker<MotionWorld, KdeWorld>("KdeFile"),
                    contract::maker<MotionWorld, GtkWorld>("GtkFile"),
                    contract::maker<MotionWorld, AppearanceWorld>("PortalAppearance"),
                    contract::maker<MotionWorld, GnomeWorld>("PortalGnome")),
    contract::kByName);

TEST_P(ReducedMotionContract, IsOffUnlessTheUserWishesIt) {
    EXPECT_FALSE(world().motion().enabled());
}

TEST_P(ReducedMotionContract, KnowsTheWishFromBeforeTheProgramStarted) {
    world().setReduced(true);
    EXPECT_TRUE(becomes(true));
}

TEST_P(ReducedMotionContract, FollowsTheSwitchBothWays) {
    EXPECT_FALSE(world().motion().enabled());
    for (int i = 0; i < 2; ++i) {
        world().setReduced(true);
        EXPECT_TRUE(becomes(true));
        world().setReduced(false);
        EXPECT_TRUE(becomes(false));
    }
}

} // namespace
} // namespace vantle
