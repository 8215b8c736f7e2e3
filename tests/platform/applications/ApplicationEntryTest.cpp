#include "platform/applications/ApplicationEntry.h"

#include "support/EnvironmentVariable.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

namespace vantle {
namespace {

using tests::EnvironmentVariable;

std::optional<ApplicationEntry> read(const QByteArray& lines) {
    return ApplicationEntry::read(QStringLiteral("org.example.Tool"),
                                  "[Desktop Entry]\nType=Application\n" + lines);
}

QString programOf(const QByteArray& command) {
    return read("Name=Tool\nExec=" + command + "\n")->program;
}

TEST(ApplicationEntry, HoldsWhatTheFileSays) {
    const auto entry = read("Name=Tool\nExec=/usr/bin/tool --new %U\nStartupWMClass=ToolWindow\n"
                            "Categories=System;TerminalEmulator;\n");
    ASSERT_TRUE(entry);
    EXPECT_EQ(entry->id, QStringLiteral("org.example.Tool"));
    EXPECT_EQ(entry->name, QStringLiteral("Tool"));
    EXPECT_EQ(entry->program, QStringLiteral("tool"));
    EXPECT_EQ(entry->windowClass, QStringLiteral("ToolWindow"));
    EXPECT_TRUE(entry->isShown);
    EXPECT_TRUE(entry->isTerminal);
}

TEST(ApplicationEntry, NameIsInTheUsersLanguageTheCountrysOwnFirst) {
    const auto nameIn = [](const QByteArray& language) {
        const EnvironmentVariable variable("LANGUAGE", language);
        return read("Name=Files\nName[de]=Dateien\nName[de_AT]=Ordner\nName[fr]=Fichiers\n")->name;
    };
    EXPECT_EQ(nameIn("de_AT"), QStringLiteral("Ordner"));
    EXPECT_EQ(nameIn("de_CH"), QStringLiteral("Dateien"));
    EXPECT_EQ(nameIn("it:fr"), QStringLiteral("Fichiers"));
    EXPECT_EQ(nameIn("it"), QStringLiteral("Files"));
}

TEST(ApplicationEntry, NameIsOneLineAndOfBearableLength) {
    EXPECT_EQ(read("Name=Two\\nlines\\sand\\\\more\n")->name,
              QStringLiteral("Two lines and\\more"));
    EXPECT_EQ(read("Name=" + QByteArray(100000, 'x') + "\n")->name.size(), 200);
    const QString hebrew = QStringLiteral("\u05E2\u05D5\u05E8\u05DA");
    EXPECT_EQ(read("Name=" + hebrew.toUtf8() + "\n")->name, hebrew);
    EXPECT_EQ(read("Name=Caf\xe9\n")->name, QStringLiteral("Caf\ufffd"));
}

TEST(ApplicationEntry, WithoutANameTheIdIsTheName) {
    EXPECT_EQ(read("Exec=tool\n")->name, QStringLiteral("org.example.Tool"));
}

TEST(ApplicationEntry, DeletedOnesAndLinksAreNone) {
    EXPECT_FALSE(read("Name=Tool\nHidden=true\n"));
    EXPECT_FALSE(ApplicationEntry::read({}, "[Desktop Entry]\nType=Link\nName=Tool\n"));
    EXPECT_FALSE(ApplicationEntry::read({}, ""));
    EXPECT_FALSE(ApplicationEntry::read({}, QByteArray(1000, '\0')));
}

TEST(ApplicationEntry, OneThatMenusDontShowIsStillOne) {
    const auto entry = read("Name=Tool\nNoDisplay=true\n");
    ASSERT_TRUE(entry);
    EXPECT_FALSE(entry->isShown);
}

TEST(ApplicationEntry, OneThatRunsInATerminalSaysSo) {
    EXPECT_TRUE(read("Name=Tool\nTerminal=true\n")->isInTerminal);
    EXPECT_FALSE(read("Name=Tool\nTerminal=false\n")->isInTerminal);
    EXPECT_FALSE(read("Name=Tool\n")->isInTerminal);
}

TEST(ApplicationEntry, KeysOfActionsAreNotItsOwn) {
    const auto entry = read("Name=Tool\n[Desktop Action new]\nName=New\nStartupWMClass=Other\n");
    EXPECT_EQ(entry->name, QStringLiteral("Tool"));
    EXPECT_EQ(entry->windowClass, QString());
}

TEST(ApplicationEntry, ProgramIsTheBaseNameOfWhatExecStarts) {
    EXPECT_EQ(programOf("tool"), QStringLiteral("tool"));
    EXPECT_EQ(programOf("\"/opt/My Tool/tool\" %f"), QStringLiteral("tool"));
    EXPECT_EQ(programOf("env LANG=C /opt/tool --flag=1"), QStringLiteral("tool"));
}

TEST(ApplicationEntry, ExecOfALauncherOrABrokenOneTellsNoProgram) {
    EXPECT_EQ(programOf("/usr/bin/flatpak run org.example.Tool"), QString());
    EXPECT_EQ(programOf("sh -c \"tool\""), QString());
    EXPECT_EQ(programOf("python3 /opt/tool/tool.py"), QString());
    EXPECT_EQ(programOf("/usr/bin/python3.11"), QString());
    EXPECT_EQ(programOf("java -jar tool.jar"), QString());
    EXPECT_EQ(programOf("pythonic"), QStringLiteral("pythonic"));
    EXPECT_EQ(programOf("\"/opt/tool"), QString()) << "a quote that nothing closes";
    EXPECT_EQ(programOf("%U"), QString());
    EXPECT_EQ(programOf("\\"), QString());
    EXPECT_EQ(programOf(""), QString());
}

} // namespace
} // namespace vantle
