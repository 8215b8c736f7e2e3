#include "platform/session/DesktopReducedMotion.h"

#include "platform/session/FakePortal.h"
#include "support/Await.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QSaveFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace vantle {
namespace {

using tests::await;
using tests::FakePortal;

const QString kAppearance = QStringLiteral("org.freedesktop.appearance");
const QString kReducedMotion = QStringLiteral("reduced-motion");
const QString kGnome = QStringLiteral("org.gnome.desktop.interface");
const QString kEnableAnimations = QStringLiteral("enable-animations");

class DesktopReducedMotionTest : public testing::Test {
protected:
    /// Writes a file of the configuration directory in place, as an editor does.
    void write(const QString& name, const QByteArray& content) {
        const QString path = m_directory.filePath(name);
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    /// Puts a new file in the place of the old one, as settings programs do.
    void replace(const QString& name, const QByteArray& content) {
        QSaveFile file(m_directory.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        ASSERT_TRUE(file.commit());
    }
    void withAnimations(bool on) {
        m_portal.values[kGnome + QStringLiteral(" enable-animations")] = on;
    }
    void withReducedMotion(uint wish) {
        m_portal.values[kAppearance + QStringLiteral(" reduced-motion")] = wish;
    }
    [[nodiscard]] bool askedAll() const { return m_portal.asked >= 2; }

    QTemporaryDir m_directory;
    FakePortal m_portal;
    tests::BusClient m_client;
};

const QByteArray kKdeReduced = "[KDE]\nAnimationDurationFactor=0\n";
const QByteArray kKdeUsual = "[KDE]\nAnimationDurationFactor=1\n";
const QByteArray kGtkReduced = "[Settings]\ngtk-enable-animations=false\n";
const QByteArray kGtkUsual = "[Settings]\ngtk-enable-animations=1\n";

TEST_F(DesktopReducedMotionTest, WishForReducedMotionCountsBesideAnimationsThatAreOn) {
    withReducedMotion(1);
    withAnimations(true);
    m_portal.appear();
    const DesktopReducedMotion motion(m_client.bus(), m_directory.path());
    EXPECT_TRUE(await([&] { return motion.enabled(); }));
}

TEST_F(DesktopReducedMotionTest, AnimationsSwitchedOffCountBesideNoWishForReducedMotion) {
    withReducedMotion(0);
    withAnimations(false);
    m_portal.appear();
    const DesktopReducedMotion motion(m_client.bus(), m_directory.path());
    EXPECT_TRUE(await([&] { return motion.enabled(); }));
}

TEST_F(DesktopReducedMotionTest, ChangesOfThePortalAreFollowed) {
    withReducedMotion(0);
    withAnimations(true);
    m_portal.appear();
    const DesktopReducedMotion motion(m_client.bus(), m_directory.path());
    QList<bool> told;
    QObject::connect(&motion, &ReducedMotion::changed, [&] { told << motion.enabled(); });
    ASSERT_TRUE(await([&] { return askedAll(); }));
    m_portal.change(kAppearance, kReducedMotion, 1U);
    EXPECT_TRUE(await([&] { return motion.enabled(); }));
    m_portal.change(kAppearance, kReducedMotion, 0U);
    EXPECT_TRUE(await([&] { return !motion.enabled(); }));
    EXPECT_EQ(told, (QList<bool>{true, false}));
    m_portal.change(kGnome, kEnableAnimations, false);
    EXPECT_TRUE(await([&] { return motion.enabled(); }));
    m_portal.change(kGnome, kEnableAnimations, true);
    EXPECT_TRUE(await([&] { return !motion.enabled(); }));
}

TEST_F(DesktopReducedMotionTest, ChangesOfOtherSettingsAreNone) {
    m_portal.appear();
    const DesktopReducedMotion motion(m_client.bus(), m_directory.path());
    ASSERT_TRUE(await([&] { return askedAll(); }));
    m_portal.change(kGnome, kReducedMotion, 1U);
    m_portal.change(kAppearance, QStringLiteral("color-scheme"), 1U);
    m_portal.change(kGnome, kEnableAnimations, QStringLiteral("false"));
    tests::runFor(100);
    EXPECT_FALSE(motion.enabled());
}

TEST_F(DesktopReducedMotionTest, PortalThatComesLaterIsAsked) {
    const DesktopReducedMotion motion(m_client.bus(), m_directory.path());
    tests::runFor(50);
    withReducedMotion(1);
    m_portal.appear();
    EXPECT_TRUE(await([&] { return motion.enabled(); }));
}

TEST_F(DesktopReducedMotionTest, PortalsAnswerStandsBeforeTheFiles) {
    write(QStringLiteral("kdeglobals"), kKdeReduced);
    withAnimations(true);
    m_portal.appear();
    const DesktopReducedMotion motion(m_client.bus(), m_directory.path());
    EXPECT_TRUE(motion.enabled()) << "the files count until the portal has answered";
    EXPECT_TRUE(await([&] { return !motion.enabled(); }));
}

TEST_F(DesktopReducedMotionTest, PortalThatKnowsNothingLeavesItToTheFiles) {
    write(QStringLiteral("kdeglobals"), kKdeReduced);
    m_portal.appear();
    const DesktopReducedMotion motion(m_client.bus(), m_directory.path());
    ASSERT_TRUE(await([&] { return askedAll(); }));
    tests::runFor(50);
    EXPECT_TRUE(motion.enabled());
}

TEST_F(DesktopReducedMotionTest, PortalThatNeverAnswersHoldsNothingUp) {
    m_portal.silent = true;
    m_portal.appear();
    QElapsedTimer timer;
    timer.start();
    const DesktopReducedMotion motion(m_client.bus(), m_directory.path());
    EXPECT_FALSE(motion.enabled());
    EXPECT_LT(timer.elapsed(), 500);
    ASSERT_TRUE(await([&] { return askedAll(); }));
    m_portal.change(kAppearance, kReducedMotion, 1U);
    EXPECT_TRUE(await([&] { return motion.enabled(); }));
}

TEST_F(DesktopReducedMotionTest, EachOfTheFilesIsRead) {
    for (const auto& [name, reduced, usual] :
         {std::tuple(QStringLiteral("gtk-3.0/settings.ini"), kGtkReduced, kGtkUsual),
          std::tuple(QStringLiteral("gtk-4.0/settings.ini"), kGtkReduced, kGtkUsual),
          std::tuple(QStringLiteral("kdeglobals"), kKdeReduced, kKdeUsual)}) {
        write(name, reduced);
        EXPECT_TRUE(DesktopReducedMotion(tests::noBus(), m_directory.path()).enabled())
            << qPrintable(name);
        write(name, usual);
        EXPECT_FALSE(DesktopReducedMotion(tests::noBus(), m_directory.path()).enabled())
            << qPrintable(name);
    }
}

TEST_F(DesktopReducedMotionTest, FirstFileThatSaysAnythingCounts) {
    write(QStringLiteral("gtk-3.0/settings.ini"), kGtkReduced);
    write(QStringLiteral("kdeglobals"), "[General]\nfixed=Mono\n");
    EXPECT_TRUE(DesktopReducedMotion(tests::noBus(), m_directory.path()).enabled());
    write(QStringLiteral("kdeglobals"), kKdeUsual);
    EXPECT_FALSE(DesktopReducedMotion(tests::noBus(), m_directory.path()).enabled());
}

TEST_F(DesktopReducedMotionTest, KeyCountsInItsGroupAlone) {
    write(QStringLiteral("kdeglobals"),
          "AnimationDurationFactor=0\n[Other]\n" + kKdeReduced.mid(6));
    EXPECT_FALSE(DesktopReducedMotion(tests::noBus(), m_directory.path()).enabled());
    write(QStringLiteral("kdeglobals"),
          "[KDE]\nLookAndFeelPackage=x\n AnimationDurationFactor = 0.0 \n[Other]\n");
    EXPECT_TRUE(DesktopReducedMotion(tests::noBus(), m_directory.path()).enabled());
}

TEST_F(DesktopReducedMotionTest, ValueThatIsNoneIsNoAnswer) {
    write(QStringLiteral("kdeglobals"), "[KDE]\nAnimationDurationFactor=\n");
    write(QStringLiteral("gtk-4.0/settings.ini"), "[Settings]\ngtk-enable-animations=maybe\n");
    write(QStringLiteral("gtk-3.0/settings.ini"), kGtkReduced);
    EXPECT_TRUE(DesktopReducedMotion(tests::noBus(), m_directory.path()).enabled());
}

TEST_F(DesktopReducedMotionTest, ChangesOfFilesAreFollowedHoweverTheyAreWritten) {
    const DesktopReducedMotion motion(tests::noBus(), m_directory.path());
    write(QStringLiteral("kdeglobals"), kKdeReduced);
    EXPECT_TRUE(await([&] { return motion.enabled(); })) << "new";
    write(QStringLiteral("kdeglobals"), kKdeUsual);
    EXPECT_TRUE(await([&] { return !motion.enabled(); })) << "in place";
    replace(QStringLiteral("kdeglobals"), kKdeReduced);
    EXPECT_TRUE(await([&] { return motion.enabled(); })) << "replaced";
    replace(QStringLiteral("kdeglobals"), kKdeUsual);
    EXPECT_TRUE(await([&] { return !motion.enabled(); })) << "replaced again";
    write(QStringLiteral("kdeglobals"), kKdeReduced);
    EXPECT_TRUE(await([&] { return motion.enabled(); })) << "in place after that";
    ASSERT_TRUE(QFile::remove(m_directory.filePath(QStringLiteral("kdeglobals"))));
    EXPECT_TRUE(await([&] { return !motion.enabled(); })) << "removed";
}

TEST_F(DesktopReducedMotionTest, FileInADirectoryThatIsMadeLaterIsFound) {
    const DesktopReducedMotion motion(tests::noBus(), m_directory.path());
    ASSERT_TRUE(QDir(m_directory.path()).mkdir(QStringLiteral("gtk-4.0")));
    tests::runFor(100);
    write(QStringLiteral("gtk-4.0/settings.ini"), kGtkReduced);
    EXPECT_TRUE(await([&] { return motion.enabled(); }));
}

TEST_F(DesktopReducedMotionTest, MissingBusAndDirectoryTakeNoTime) {
    QElapsedTimer timer;
    timer.start();
    const DesktopReducedMotion motion(tests::noBus(), QStringLiteral("/nowhere/at/all"));
    EXPECT_LT(timer.elapsed(), 100);
    EXPECT_FALSE(motion.enabled());
}

} // namespace
} // namespace vantle
