#include "platform/applications/ProcessScope.h"

#include "support/QtPrinters.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <limits>

namespace vantle {
namespace {

const QByteArray kSlice = "0::/user.slice/user-1000.slice/user@1000.service/app.slice/";

QString unitOf(const QByteArray& unit) {
    return ProcessScope::parse(kSlice + unit + "\n", {}).unitId;
}
QString sandboxOf(const QByteArray& unit) {
    return ProcessScope::parse(kSlice + unit + "\n", {}).sandboxId;
}

TEST(ProcessScope, UnitNamesTheEntryThatWasStarted) {
    EXPECT_EQ(unitOf("app-gnome-org.gnome.Terminal-4711.scope"),
              QStringLiteral("org.gnome.Terminal"));
    EXPECT_EQ(unitOf("app-firefox-4711.scope"), QStringLiteral("firefox"));
    EXPECT_EQ(unitOf("app-org.kde.kate@0123abcd.service"), QStringLiteral("org.kde.kate"));
    EXPECT_EQ(unitOf("app-nextcloud@autostart.service"), QStringLiteral("nextcloud"));
    EXPECT_EQ(unitOf("app-gnome-nextcloud.service"), QStringLiteral("nextcloud"));
}

TEST(ProcessScope, EscapedDashesAreOfTheId) {
    EXPECT_EQ(unitOf("app-gnome-jetbrains\\x2didea\\x2dce-4711.scope"),
              QStringLiteral("jetbrains-idea-ce"));
    EXPECT_EQ(unitOf("app-gnome-odd\\xzz-1.scope"), QStringLiteral("odd\\xzz"));
}

TEST(ProcessScope, InnermostUnitThatSaysSomethingCounts) {
    EXPECT_EQ(unitOf("app-org.kde.konsole-1.scope/tab(7).scope"),
              QStringLiteral("org.kde.konsole"));
}

TEST(ProcessScope, OtherUnitsTellNothing) {
    for (const char* unit : {"session-2.scope", "dbus.service", "app-.scope", "app-x.scope",
                             "vte-spawn-0f0f.scope", "", "app-"})
        EXPECT_EQ(unitOf(unit), QString()) << unit;
    EXPECT_EQ(ProcessScope::parse({}, {}), ProcessScope());
    EXPECT_EQ(ProcessScope::parse("garbage\0\n:::\n", {}), ProcessScope());
}

TEST(ProcessScope, SandboxOfFlatpakIsTheInnerFilesWordElseTheUnits) {
    EXPECT_EQ(sandboxOf("app-flatpak-org.mozilla.firefox-4711.scope"),
              QStringLiteral("org.mozilla.firefox"));
    EXPECT_EQ(ProcessScope::parse({}, "[Application]\nname=org.gimp.GIMP\nruntime=x\n").sandboxId,
              QStringLiteral("org.gimp.GIMP"));
    EXPECT_EQ(ProcessScope::parse({}, "[Instance]\nname=org.gimp.GIMP\n").sandboxId, QString());
}

TEST(ProcessScope, SandboxOfSnapIsNamedAsItsEntry) {
    EXPECT_EQ(sandboxOf("snap.code.code-0b7a6b63-1c0f-4a52-9d5e-9fd3d6a4a1b2.scope"),
              QStringLiteral("code_code"));
    EXPECT_EQ(sandboxOf("snap.sublime-text.subl.0b7a.scope"), QString());
    EXPECT_EQ(sandboxOf("snap.telegram-desktop.telegram-desktop-4711.scope"),
              QStringLiteral("telegram-desktop_telegram-desktop"));
    EXPECT_EQ(sandboxOf("snap.lxd.daemon.service"), QStringLiteral("lxd_daemon"));
}

TEST(ProcessScope, ProcessTellsItsProgramAndAVanishedOneNothing) {
    EXPECT_EQ(ProcessScope::read(QCoreApplication::applicationPid()).program,
              QFileInfo(QCoreApplication::applicationFilePath()).fileName());
    EXPECT_EQ(ProcessScope::read(std::numeric_limits<qint64>::max()), ProcessScope());
}

TEST(ProcessScope, ProcessOfAnInterpreterTellsItsScript) {
    const QTemporaryDir folder;
    QFile script(folder.filePath(QStringLiteral("ledger.py")));
    ASSERT_TRUE(script.open(QIODevice::WriteOnly));
    script.write("print('here')\ninput()");
    script.close();
    QProcess process;
    process.start(QStringLiteral("/usr/bin/python3"), {QStringLiteral("-u"), script.fileName()});
    ASSERT_TRUE(process.waitForReadyRead()); // its command line comes a little later than itself
    const ProcessScope scope = ProcessScope::read(process.processId());
    EXPECT_TRUE(scope.program.startsWith(QStringLiteral("python3"))) << scope.program.toStdString();
    EXPECT_EQ(scope.script, QStringLiteral("ledger.py"));
    process.closeWriteChannel();
    process.waitForFinished();
}

} // namespace
} // namespace vantle
