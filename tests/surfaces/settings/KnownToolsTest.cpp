// The tools that the caption of auto mode names are those that it knows on this desktop.
#include "launch/Catalogues.h"
#include "platform/applications/KnownApplications.h"
#include "sensing/AutoSeedTables.h"
#include "support/QtPrinters.h"
#include "support/Text.h"
#include "surfaces/settings/SettingsWorld.h"
#include "tracking/Skill.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

namespace vantle {
namespace {

using tests::text;

/// The desktop entries of the tools, by the names that a caption may use.
const std::map<QString, QStringList> kEntries = {
    {text("VS Code"), {text("code"), text("com.visualstudio.code"), text("code_code")}},
    {text("Zed"), {text("dev.zed.Zed")}},
    {text("terminals"), {text("org.gnome.Terminal"), text("org.kde.konsole"), text("XTerm")}},
    {text("Figma"), {text("figma-linux"), text("io.github.Figma_Linux.figma_linux")}},
    {text("Inkscape"), {text("org.inkscape.Inkscape")}},
    {text("Slack"), {text("slack"), text("com.slack.Slack")}},
    {text("Thunderbird"), {text("thunderbird"), text("org.mozilla.Thunderbird")}},
    {text("Obsidian"), {text("obsidian"), text("md.obsidian.Obsidian")}},
    {text("Logseq"), {text("com.logseq.Logseq")}},
};

/// The skill under which auto mode files the application from the first launch.
QString skillOf(const QString& entry) {
    const QString identity = knownapplications::identityOf(entry);
    QString skill;
    for (const auto& row : autoseeds::current()) // a later row wins
        if (std::ranges::any_of(row.bundleIds,
                                [&](const char* id) { return identity == QLatin1String(id); }))
            skill = QString::fromLatin1(row.skillId);
    for (const Skill& one : Skill::defaults())
        if (one.id == skill) return one.name;
    return skill;
}

class KnownToolsTest : public testing::Test, protected tests::SettingsWorld {};

TEST_F(KnownToolsTest, EachCountsAsTheCaptionSays) {
    const Catalogues catalogues({});
    open();
    const QString caption = row("Auto mode").caption();
    const auto list =
        QRegularExpression(text("common tools: (.+?), and dozens more")).match(caption);
    ASSERT_TRUE(list.hasMatch()) << caption.toStdString();
    int named = 0;
    auto groups = QRegularExpression(text("(?:^|, )(.+?)(?: count)? as (.+?)(?=, |$)"))
                      .globalMatch(list.captured(1));
    while (groups.hasNext()) {
        const auto group = groups.next();
        for (const QString& tool : group.captured(1).split(QRegularExpression(text(", | and ")))) {
            ASSERT_TRUE(kEntries.contains(tool)) << tool.toStdString();
            for (const QString& entry : kEntries.at(tool))
                EXPECT_EQ(skillOf(entry), group.captured(2)) << entry.toStdString();
            ++named;
        }
    }
    EXPECT_EQ(named, 9);
}

} // namespace
} // namespace vantle
