#include "platform/desktop/KnownApplications.h"

#include "support/QtPrinters.h"

#include <QSet>

#include <gtest/gtest.h>

#include <algorithm>

namespace vantle {
namespace {

QString q(const char* text) { return QString::fromUtf8(text); }

/// The identities that auto mode files from the start.
QSet<QString> seeds() {
    const QString all =
        q("com.apple.dt.Xcode com.microsoft.VSCode com.todesktop.230313mzl4w4u92 "
          "com.codeium.windsurf com.exafunction.windsurf dev.zed.Zed com.sublimetext.4 "
          "com.google.android.studio com.anthropic.claudefordesktop com.openai.chat "
          "com.openai.codex ai.perplexity.mac com.apple.Terminal com.googlecode.iterm2 "
          "dev.warp.Warp-Stable com.mitchellh.ghostty com.github.GitHubClient "
          "com.figma.Desktop com.bohemiancoding.sketch3 com.adobe.Photoshop com.adobe.illustrator "
          "com.seriflabs.affinitydesigner2 com.seriflabs.affinityphoto2 com.framer.desktop "
          "com.tinyspeck.slackmacgap com.hnc.Discord com.apple.mail us.zoom.xos "
          "com.microsoft.teams2 org.telegram.desktop ru.keepcoder.Telegram com.apple.iChat "
          "com.apple.MobileSMS notion.id com.linear com.culturedcode.ThingsMac md.obsidian "
          "com.jetbrains.intellij com.jetbrains.intellij.ce com.jetbrains.WebStorm "
          "com.jetbrains.PyCharm com.jetbrains.pycharm.ce com.jetbrains.PhpStorm "
          "com.jetbrains.goland com.jetbrains.CLion com.jetbrains.rubymine com.jetbrains.rider "
          "com.microsoft.Word com.apple.iWork.Pages net.ankiweb.dtop");
    const QStringList list = all.split(QLatin1Char(' '));
    return {list.cbegin(), list.cend()};
}

/// What it files or leaves alone by words in the identity.
bool isKnownByWord(const QString& identity) {
    const QStringList words{q("com.microsoft.excel"),  q("powerpoint"), q("safari"),
                            q("google.chrome"),        q("chromium"),   q("firefox"),
                            q("com.microsoft.edgemac")};
    const QString text = identity.toLower();
    return std::any_of(words.cbegin(), words.cend(),
                       [&](const QString& word) { return text.contains(word); });
}

TEST(KnownApplications, EveryRowLeadsToAnIdentityThatAutoModeKnows) {
    const QSet<QString> known = seeds();
    EXPECT_GT(knownapplications::rows().size(), 100U);
    for (const auto& row : knownapplications::rows()) {
        const QString identity = row.identity;
        EXPECT_TRUE(known.contains(identity) || isKnownByWord(identity)) << identity.toStdString();
    }
}

TEST(KnownApplications, NoEntryHasTwoRows) {
    QSet<QString> seen;
    for (const auto& row : knownapplications::rows()) {
        const QString id = QString(row.entryId).toCaseFolded();
        EXPECT_FALSE(seen.contains(id)) << id.toStdString();
        seen.insert(id);
    }
}

TEST(KnownApplications, LettersOfEitherCaseAreTheSame) {
    EXPECT_EQ(knownapplications::identityOf(q("Code")), q("com.microsoft.VSCode"));
    EXPECT_EQ(knownapplications::identityOf(q("org.gnome.terminal")), q("com.apple.Terminal"));
}

TEST(KnownApplications, OtherIdsStayAsTheyAre) {
    EXPECT_EQ(knownapplications::identityOf(q("org.example.Tool")), q("org.example.Tool"));
    EXPECT_EQ(knownapplications::identityOf({}), QString());
}

TEST(KnownApplications, InstallationsSideBySideAreOneTool) {
    EXPECT_EQ(
        knownapplications::identityOf(q("jetbrains-pycharm-0a1b2c3d-0011-2233-4455-66778899aabb")),
        q("com.jetbrains.PyCharm"));
}

} // namespace
} // namespace vantle
