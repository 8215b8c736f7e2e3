#include "platform/applications/KnownApplications.h"

#include "sensing/AutoSeedTables.h"
#include "sensing/AutoSuggestion.h"
#include "support/QtPrinters.h"
#include "support/Text.h"

#include <QSet>

#include <gtest/gtest.h>

#include <span>
#include <vector>

namespace vantle {
namespace {

using tests::text;

/// The identities that auto mode files from the start, with the skills of any version.
QSet<QString> seeds() {
    QSet<QString> all;
    for (const auto& table : {autoseeds::current(), autoseeds::legacy()})
        for (const auto& row : table)
            for (const char* bundleId : row.bundleIds)
                all.insert(text(bundleId));
    return all;
}

/// What it files, or leaves alone, by words in the identity.
bool isKnownByWord(const QString& identity) {
    if (autosuggestion::isBrowser(identity, {})) return true;
    std::vector<Skill> skills(2);
    skills[0].id = text("marketing");
    skills[1].id = text("founder_ops");
    return autosuggestion::suggestedSkillId(identity, {}, skills).has_value();
}

TEST(KnownApplications, EveryRowLeadsToAnIdentityThatAutoModeKnows) {
    const QSet<QString> known = seeds();
    ASSERT_FALSE(known.isEmpty());
    EXPECT_GT(knownapplications::rows().size(), 100U);
    for (const auto& row : knownapplications::rows()) {
        const QString identity = row.identity;
        EXPECT_TRUE(known.contains(identity) || isKnownByWord(identity)) << identity.toStdString();
    }
}

/// Applications of one kind, and the skill that auto mode files them under from the start: with the
/// skills that people start with now, and with those of earlier versions. Empty for none.
struct Kind {
    const char* skill;
    const char* formerSkill;
    std::vector<const char*> ids;
};

const std::vector<Kind>& kinds() {
    static const std::vector<Kind> all = {
        {"building",
         "code",
         {"code", "org.gnome.TextEditor", "org.gnome.gedit", "org.kde.kwrite", "org.xfce.mousepad",
          "pluma", "featherpad", "nvim-qt", "emacsclient", "neovide", "dev.lapce.lapce",
          "com.system76.CosmicEdit", "io.elementary.code"}},
        {"building",
         "code",
         {"org.kde.kdevelop",
          "org.qt-project.qtcreator",
          "spyder",
          "rstudio",
          "positron",
          "Eclipse",
          "org.apache.netbeans",
          "arduino",
          "cc.arduino.IDE2",
          "Godot",
          "unityhub",
          "sqlitebrowser",
          "dbeaver-ce",
          "rest.insomnia.Insomnia",
          "com.usebruno.Bruno",
          "org.wireshark.Wireshark",
          "virt-manager",
          "io.podman_desktop.PodmanDesktop",
          "datagrip_datagrip",
          "rustrover_rustrover",
          "pycharm-professional_pycharm-professional"}},
        {"building", "code", {"org.gnome.gitg", "git-cola", "git-dag", "org.gnome.Meld"}},
        {"building",
         "code",
         {"XTerm", "org.kde.yakuake", "guake", "tilda", "sakura", "terminology", "st",
          "cool-retro-term", "foot-server", "app.devsuite.Ptyxis", "com.raggesilver.BlackBox",
          "tabby", "org.contourterminal.Contour", "com.rioterm.Rio"}},
        {"connections",
         "business",
         {"im.dino.Dino",        "org.gajim.Gajim",          "nheko",
          "org.kde.neochat",     "org.kde.konversation",     "org.gnome.Polari",
          "quasselclient",       "io.github.Hexchat",        "im.riot.Riot",
          "element-desktop",     "dev.vencord.Vesktop",      "com.mattermost.Desktop",
          "org.zulip.Zulip",     "com.rtosta.zapzap",        "org.gnome.Fractal",
          "org.ferdium.Ferdium", "org.jitsi.jitsi-meet",     "sylpheed",
          "org.kde.kontact",     "eu.betterbird.Betterbird", "net.thunderbird.Thunderbird"}},
        {"founder_ops", "business", {"org.kde.korganizer"}},
        {"product_design",
         "design",
         {"gimp", "scribus", "org.darktable.darktable", "rawtherapee", "org.kde.digikam", "mypaint",
          "org.fontforge.FontForge", "org.gnome.Dia", "org.freecadweb.FreeCAD", "librecad",
          "openscad", "com.authormore.penpotdesktop", "com.jgraph.drawio.desktop",
          "org.kicad.kicad", "com.github.PintaProject.Pinta"}},
        {"marketing",
         "design",
         {"org.kde.kdenlive", "org.shotcut.Shotcut", "org.pitivi.Pitivi", "com.obsproject.Studio",
          "org.openshot.OpenShot", "audacity", "lmms", "ardour", "fm.reaper.Reaper"}},
        {"marketing",
         "writing",
         {"libreoffice-startcenter", "libreoffice_writer", "libreoffice_impress",
          "org.onlyoffice.desktopeditors", "wps-office-wps", "abiword",
          "org.gnome.gitlab.somas.Apostrophe", "ghostwriter", "focuswriter", "manuskript",
          "me.mitya57.ReText", "texstudio", "texmaker", "org.kde.kile", "lyx", "gummi",
          "com.zettlr.Zettlr", "com.github.marktext.marktext"}},
        {"founder_ops",
         "business",
         {"libreoffice_calc", "wps-office-et", "gnumeric", "gnucash", "homebank", "zim",
          "cherrytree", "org.gnome.Gnote", "org.gnome.Todo", "com.github.xournalpp.xournalpp",
          "net.cozic.joplin_desktop", "com.logseq.Logseq", "io.anytype.anytype",
          "org.standardnotes.standardnotes", "com.super_productivity.SuperProductivity",
          "com.ticktick.TickTick", "com.github.zadam.trilium", "com.github.flxzt.rnote",
          "io.github.mrvladus.List"}},
        {"",
         "study",
         {"org.gnome.Evince", "org.gnome.Papers", "org.kde.okular", "org.pwmt.zathura", "atril",
          "com.github.johnfactotum.Foliate", "calibre-gui", "org.zotero.Zotero"}}};
    return all;
}

/// The skill of an application that comes to the front for the first time.
QString skillOf(const QString& identity, std::span<const autoseeds::Row> seeds,
                const std::vector<Skill>& skills) {
    QString skill;
    for (const auto& row : seeds)
        for (const char* bundleId : row.bundleIds)
            if (identity == text(bundleId)) skill = text(row.skillId);
    if (!skill.isEmpty()) return skill;
    return autosuggestion::suggestedSkillId(identity, {}, skills).value_or(QString());
}

TEST(KnownApplications, WhatPeopleUseIsFiledWithoutAQuestion) {
    const std::vector<Skill> now(Skill::defaults().begin(), Skill::defaults().end());
    std::vector<Skill> former(5);
    for (std::size_t i = 0; const char* id : {"design", "code", "writing", "study", "business"})
        former[i++].id = text(id);
    for (const Kind& kind : kinds())
        for (const char* id : kind.ids) {
            const QString identity = knownapplications::identityOf(text(id));
            EXPECT_EQ(skillOf(identity, autoseeds::current(), now), text(kind.skill)) << id;
            EXPECT_EQ(skillOf(identity, autoseeds::legacy(), former), text(kind.formerSkill)) << id;
        }
}

TEST(KnownApplications, BrowsersAreLeftToTheirUsers) {
    for (const char* id :
         {"org.qutebrowser.qutebrowser", "org.kde.konqueror", "google-chrome-beta",
          "google-chrome-unstable", "torbrowser", "one.ablaze.floorp", "net.waterfox.waterfox",
          "net.mullvad.MullvadBrowser", "app.zen_browser.zen", "org.kde.angelfish"})
        EXPECT_TRUE(autosuggestion::isBrowser(knownapplications::identityOf(text(id)), {})) << id;
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
    EXPECT_EQ(knownapplications::identityOf(text("Code")), text("com.microsoft.VSCode"));
    EXPECT_EQ(knownapplications::identityOf(text("org.gnome.terminal")),
              text("com.apple.Terminal"));
}

TEST(KnownApplications, OtherIdsStayAsTheyAre) {
    EXPECT_EQ(knownapplications::identityOf(text("org.example.Tool")), text("org.example.Tool"));
    EXPECT_EQ(knownapplications::identityOf({}), QString());
}

TEST(KnownApplications, InstallationsSideBySideAreOneTool) {
    EXPECT_EQ(knownapplications::identityOf(
                  text("jetbrains-pycharm-0a1b2c3d-0011-2233-4455-66778899aabb")),
              text("com.jetbrains.PyCharm"));
}

} // namespace
} // namespace vantle
