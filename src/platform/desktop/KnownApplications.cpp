// A row: the desktop entry's id, the identity in auto mode's tables, and whose entry it is.
// "Debian" rows are as Debian 12's packages hold them; "vendor" is the maker's own package or
// archive, whose id other distributions mostly keep. Ids of Snap entries are "{snap}_{app}". A tool
// that the tables don't name has the identity of the nearest of its kind, so all terminals are one
// there.
#include "platform/desktop/KnownApplications.h"

#include <QHash>
#include <QRegularExpression>

namespace vantle::knownapplications {

namespace {

using L = QLatin1String;

// clang-format off
constexpr Row kRows[] = {
    // Editors and what programs are made with
    {L("code"), L("com.microsoft.VSCode")}, // vendor
    {L("code_code"), L("com.microsoft.VSCode")}, // Snap
    {L("com.visualstudio.code"), L("com.microsoft.VSCode")}, // Flatpak
    {L("code-oss"), L("com.microsoft.VSCode")}, // other distributions
    {L("codium"), L("com.microsoft.VSCode")}, // vendor
    {L("codium_codium"), L("com.microsoft.VSCode")}, // Snap
    {L("com.vscodium.codium"), L("com.microsoft.VSCode")}, // Flatpak
    {L("cursor"), L("com.todesktop.230313mzl4w4u92")}, // vendor
    {L("windsurf"), L("com.exafunction.windsurf")}, // vendor
    {L("dev.zed.Zed"), L("dev.zed.Zed")}, // Flatpak, vendor
    {L("sublime_text"), L("com.sublimetext.4")}, // vendor
    {L("sublime-text_subl"), L("com.sublimetext.4")}, // Snap
    {L("com.sublimetext.three"), L("com.sublimetext.4")}, // Flatpak
    {L("emacs"), L("com.sublimetext.4")}, // Debian
    {L("org.gnu.emacs"), L("com.sublimetext.4")}, // Flatpak
    {L("gvim"), L("com.sublimetext.4")}, // Debian
    {L("org.kde.kate"), L("com.sublimetext.4")}, // Debian, Flatpak
    {L("geany"), L("com.sublimetext.4")}, // Debian
    {L("org.geany.Geany"), L("com.sublimetext.4")}, // Flatpak
    {L("org.gnome.Builder"), L("com.apple.dt.Xcode")}, // Debian, Flatpak
    {L("jetbrains-studio"), L("com.google.android.studio")}, // vendor
    {L("android-studio_android-studio"), L("com.google.android.studio")}, // Snap
    {L("com.google.AndroidStudio"), L("com.google.android.studio")}, // Flatpak
    {L("jetbrains-idea"), L("com.jetbrains.intellij")}, // vendor
    {L("intellij-idea-ultimate_intellij-idea-ultimate"), L("com.jetbrains.intellij")}, // Snap
    {L("com.jetbrains.IntelliJ-IDEA-Ultimate"), L("com.jetbrains.intellij")}, // Flatpak
    {L("jetbrains-idea-ce"), L("com.jetbrains.intellij.ce")}, // vendor
    {L("intellij-idea-community_intellij-idea-community"), L("com.jetbrains.intellij.ce")}, // Snap
    {L("com.jetbrains.IntelliJ-IDEA-Community"), L("com.jetbrains.intellij.ce")}, // Flatpak
    {L("jetbrains-webstorm"), L("com.jetbrains.WebStorm")}, // vendor
    {L("webstorm_webstorm"), L("com.jetbrains.WebStorm")}, // Snap
    {L("com.jetbrains.WebStorm"), L("com.jetbrains.WebStorm")}, // Flatpak
    {L("jetbrains-pycharm"), L("com.jetbrains.PyCharm")}, // vendor
    {L("pycharm-professional_pycharm-professional"), L("com.jetbrains.PyCharm")}, // Snap
    {L("com.jetbrains.PyCharm-Professional"), L("com.jetbrains.PyCharm")}, // Flatpak
    {L("jetbrains-pycharm-ce"), L("com.jetbrains.pycharm.ce")}, // vendor
    {L("pycharm-community_pycharm-community"), L("com.jetbrains.pycharm.ce")}, // Snap
    {L("com.jetbrains.PyCharm-Community"), L("com.jetbrains.pycharm.ce")}, // Flatpak
    {L("jetbrains-phpstorm"), L("com.jetbrains.PhpStorm")}, // vendor
    {L("phpstorm_phpstorm"), L("com.jetbrains.PhpStorm")}, // Snap
    {L("com.jetbrains.PhpStorm"), L("com.jetbrains.PhpStorm")}, // Flatpak
    {L("jetbrains-goland"), L("com.jetbrains.goland")}, // vendor
    {L("goland_goland"), L("com.jetbrains.goland")}, // Snap
    {L("com.jetbrains.GoLand"), L("com.jetbrains.goland")}, // Flatpak
    {L("jetbrains-clion"), L("com.jetbrains.CLion")}, // vendor
    {L("clion_clion"), L("com.jetbrains.CLion")}, // Snap
    {L("com.jetbrains.CLion"), L("com.jetbrains.CLion")}, // Flatpak
    {L("jetbrains-rubymine"), L("com.jetbrains.rubymine")}, // vendor
    {L("rubymine_rubymine"), L("com.jetbrains.rubymine")}, // Snap
    {L("com.jetbrains.RubyMine"), L("com.jetbrains.rubymine")}, // Flatpak
    {L("jetbrains-rider"), L("com.jetbrains.rider")}, // vendor
    {L("rider_rider"), L("com.jetbrains.rider")}, // Snap
    {L("com.jetbrains.Rider"), L("com.jetbrains.rider")}, // Flatpak
    {L("github-desktop"), L("com.github.GitHubClient")}, // vendor
    {L("io.github.shiftey.Desktop"), L("com.github.GitHubClient")}, // Flatpak
    // Terminals
    {L("org.gnome.Terminal"), L("com.apple.Terminal")}, // Debian
    {L("org.gnome.Console"), L("com.apple.Terminal")}, // Debian
    {L("org.gnome.Ptyxis"), L("com.apple.Terminal")}, // other distributions
    {L("org.kde.konsole"), L("com.apple.Terminal")}, // Debian
    {L("xfce4-terminal"), L("com.apple.Terminal")}, // Debian
    {L("mate-terminal"), L("com.apple.Terminal")}, // Debian
    {L("lxterminal"), L("com.apple.Terminal")}, // Debian
    {L("terminator"), L("com.apple.Terminal")}, // Debian
    {L("com.gexperts.Tilix"), L("com.apple.Terminal")}, // Debian
    {L("debian-xterm"), L("com.apple.Terminal")}, // Debian
    {L("debian-uxterm"), L("com.apple.Terminal")}, // Debian
    {L("XTerm"), L("com.apple.Terminal")}, // window class
    {L("kitty"), L("com.apple.Terminal")}, // Debian
    {L("Alacritty"), L("com.apple.Terminal")}, // Debian
    {L("foot"), L("com.apple.Terminal")}, // Debian
    {L("footclient"), L("com.apple.Terminal")}, // Debian
    {L("org.wezfurlong.wezterm"), L("com.apple.Terminal")}, // vendor, Flatpak
    {L("com.mitchellh.ghostty"), L("com.mitchellh.ghostty")}, // vendor
    {L("dev.warp.Warp"), L("dev.warp.Warp-Stable")}, // vendor
    // Chat and mail
    {L("slack"), L("com.tinyspeck.slackmacgap")}, // vendor
    {L("slack_slack"), L("com.tinyspeck.slackmacgap")}, // Snap
    {L("com.slack.Slack"), L("com.tinyspeck.slackmacgap")}, // Flatpak
    {L("discord"), L("com.hnc.Discord")}, // vendor
    {L("discord_discord"), L("com.hnc.Discord")}, // Snap
    {L("com.discordapp.Discord"), L("com.hnc.Discord")}, // Flatpak
    {L("thunderbird"), L("com.apple.mail")}, // Debian
    {L("thunderbird_thunderbird"), L("com.apple.mail")}, // Snap
    {L("org.mozilla.Thunderbird"), L("com.apple.mail")}, // Flatpak
    {L("org.gnome.Evolution"), L("com.apple.mail")}, // Debian, Flatpak
    {L("org.gnome.Geary"), L("com.apple.mail")}, // Debian, Flatpak
    {L("org.kde.kmail2"), L("com.apple.mail")}, // Debian
    {L("Zoom"), L("us.zoom.xos")}, // vendor
    {L("zoom-client_zoom-client"), L("us.zoom.xos")}, // Snap
    {L("us.zoom.Zoom"), L("us.zoom.xos")}, // Flatpak
    {L("teams-for-linux"), L("com.microsoft.teams2")}, // vendor
    {L("teams-for-linux_teams-for-linux"), L("com.microsoft.teams2")}, // Snap
    {L("com.github.IsmaelMartinez.teams_for_linux"), L("com.microsoft.teams2")}, // Flatpak
    {L("org.telegram.desktop"), L("org.telegram.desktop")}, // Debian, Flatpak
    {L("telegram-desktop_telegram-desktop"), L("org.telegram.desktop")}, // Snap
    {L("pidgin"), L("com.apple.iChat")}, // Debian
    {L("signal-desktop"), L("com.apple.MobileSMS")}, // vendor
    {L("signal-desktop_signal-desktop"), L("com.apple.MobileSMS")}, // Snap
    {L("org.signal.Signal"), L("com.apple.MobileSMS")}, // Flatpak
    // Design
    {L("figma-linux"), L("com.figma.Desktop")}, // vendor
    {L("figma-linux_figma-linux"), L("com.figma.Desktop")}, // Snap
    {L("io.github.Figma_Linux.figma_linux"), L("com.figma.Desktop")}, // Flatpak
    {L("gimp"), L("com.adobe.Photoshop")}, // Debian
    {L("org.gimp.GIMP"), L("com.adobe.Photoshop")}, // Flatpak
    {L("org.inkscape.Inkscape"), L("com.adobe.illustrator")}, // Debian, Flatpak
    {L("org.kde.krita"), L("com.seriflabs.affinityphoto2")}, // Debian, Flatpak
    {L("com.icons8.Lunacy"), L("com.bohemiancoding.sketch3")}, // Flatpak
    // Notes and plans
    {L("obsidian"), L("md.obsidian")}, // vendor
    {L("obsidian_obsidian"), L("md.obsidian")}, // Snap
    {L("md.obsidian.Obsidian"), L("md.obsidian")}, // Flatpak
    {L("notion-app"), L("notion.id")}, // vendor
    {L("notion-snap-reborn_notion-snap-reborn"), L("notion.id")}, // Snap
    {L("io.github.alainm23.planify"), L("com.culturedcode.ThingsMac")}, // Flatpak
    // Office and study
    {L("libreoffice-writer"), L("com.microsoft.Word")}, // Debian
    {L("org.libreoffice.LibreOffice.writer"), L("com.microsoft.Word")}, // Flatpak
    {L("libreoffice-calc"), L("com.microsoft.Excel")}, // Debian
    {L("org.libreoffice.LibreOffice.calc"), L("com.microsoft.Excel")}, // Flatpak
    {L("libreoffice-impress"), L("com.microsoft.Powerpoint")}, // Debian
    {L("org.libreoffice.LibreOffice.impress"), L("com.microsoft.Powerpoint")}, // Flatpak
    {L("anki"), L("net.ankiweb.dtop")}, // vendor
    {L("net.ankiweb.Anki"), L("net.ankiweb.dtop")}, // Flatpak
    // Browsers that their ids and names don't show to be such
    {L("google-chrome"), L("com.google.Chrome")}, // vendor
    {L("microsoft-edge"), L("com.microsoft.edgemac")}, // vendor
    {L("com.microsoft.Edge"), L("com.microsoft.edgemac")}, // Flatpak
    {L("org.gnome.Epiphany"), L("com.apple.Safari")}, // Debian, Flatpak
    {L("org.kde.falkon"), L("org.chromium.Chromium")}, // Debian, Flatpak
    {L("librewolf"), L("org.mozilla.firefox")}, // vendor
    {L("io.gitlab.librewolf-community"), L("org.mozilla.firefox")}, // Flatpak
    {L("app.zen_browser.zen"), L("org.mozilla.firefox")}, // Flatpak
};
// clang-format on

QString key(const QString& entryId) { return entryId.toCaseFolded(); }

QHash<QString, L> makeTable() {
    QHash<QString, L> table;
    for (const Row& row : kRows)
        table.insert(key(row.entryId), row.identity);
    return table;
}

/// An id without the UUID that some installers of tools in several versions append.
QString withoutUuid(const QString& id) {
    static const QRegularExpression kUuid(
        QStringLiteral("-[0-9a-f]{8}(-[0-9a-f]{4}){3}-[0-9a-f]{12}$"));
    return QString(id).remove(kUuid);
}

} // namespace

QString identityOf(const QString& entryId) {
    static const QHash<QString, L> kTable = makeTable();
    const QString folded = key(entryId);
    for (const QString& id : {folded, withoutUuid(folded)})
        if (const auto found = kTable.constFind(id); found != kTable.cend()) return *found;
    return entryId;
}

std::span<const Row> rows() { return kRows; }

} // namespace vantle::knownapplications
