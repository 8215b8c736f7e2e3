// Columns: desktop entry id, identity in auto mode's tables; the comment names the entry's origin.
// "Debian" is Debian 12; "vendor" is the maker's package or archive, whose id other distributions
// mostly keep. Ids of Snap entries are "{snap}_{app}". A tool that the tables lack gets the
// identity of the nearest one of its kind; all terminals share one.
#include "platform/applications/KnownApplications.h"

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
    {L("org.gnome.TextEditor"), L("com.sublimetext.4")}, // Debian, Flatpak
    {L("org.gnome.gedit"), L("com.sublimetext.4")}, // Debian, Flatpak
    {L("org.kde.kwrite"), L("com.sublimetext.4")}, // Debian, Flatpak
    {L("org.xfce.mousepad"), L("com.sublimetext.4")}, // Debian
    {L("pluma"), L("com.sublimetext.4")}, // Debian
    {L("featherpad"), L("com.sublimetext.4")}, // Debian
    {L("nvim-qt"), L("com.sublimetext.4")}, // Debian
    {L("emacsclient"), L("com.sublimetext.4")}, // Debian
    {L("neovide"), L("com.sublimetext.4")}, // vendor
    {L("dev.neovide.neovide"), L("com.sublimetext.4")}, // Flatpak
    {L("dev.lapce.lapce"), L("com.sublimetext.4")}, // vendor, Flatpak
    {L("com.system76.CosmicEdit"), L("com.sublimetext.4")}, // other distributions
    {L("io.elementary.code"), L("com.sublimetext.4")}, // other distributions
    {L("org.kde.kdevelop"), L("com.apple.dt.Xcode")}, // Debian, Flatpak
    {L("org.qt-project.qtcreator"), L("com.apple.dt.Xcode")}, // Debian
    {L("io.qt.QtCreator"), L("com.apple.dt.Xcode")}, // Flatpak
    {L("spyder"), L("com.apple.dt.Xcode")}, // Debian
    {L("rstudio"), L("com.apple.dt.Xcode")}, // vendor
    {L("positron"), L("com.apple.dt.Xcode")}, // vendor
    {L("arduino"), L("com.apple.dt.Xcode")}, // Debian
    {L("cc.arduino.arduinoide"), L("com.apple.dt.Xcode")}, // Flatpak
    {L("cc.arduino.IDE2"), L("com.apple.dt.Xcode")}, // Flatpak
    {L("org.eclipse.Java"), L("com.apple.dt.Xcode")}, // Flatpak
    {L("Eclipse"), L("com.apple.dt.Xcode")}, // window class
    {L("org.apache.netbeans"), L("com.apple.dt.Xcode")}, // Flatpak
    {L("netbeans_netbeans"), L("com.apple.dt.Xcode")}, // Snap
    {L("org.godotengine.Godot"), L("com.apple.dt.Xcode")}, // Flatpak
    {L("Godot"), L("com.apple.dt.Xcode")}, // window class
    {L("unityhub"), L("com.apple.dt.Xcode")}, // vendor
    {L("com.unity.UnityHub"), L("com.apple.dt.Xcode")}, // Flatpak
    {L("sqlitebrowser"), L("com.apple.dt.Xcode")}, // Debian
    {L("org.sqlitebrowser.sqlitebrowser"), L("com.apple.dt.Xcode")}, // Flatpak
    {L("dbeaver-ce"), L("com.apple.dt.Xcode")}, // vendor
    {L("dbeaver-ce_dbeaver-ce"), L("com.apple.dt.Xcode")}, // Snap
    {L("io.dbeaver.DBeaverCommunity"), L("com.apple.dt.Xcode")}, // Flatpak
    {L("insomnia"), L("com.apple.dt.Xcode")}, // vendor
    {L("rest.insomnia.Insomnia"), L("com.apple.dt.Xcode")}, // Flatpak
    {L("bruno"), L("com.apple.dt.Xcode")}, // vendor
    {L("com.usebruno.Bruno"), L("com.apple.dt.Xcode")}, // Flatpak
    {L("org.wireshark.Wireshark"), L("com.apple.dt.Xcode")}, // Debian, Flatpak
    {L("virt-manager"), L("com.apple.dt.Xcode")}, // Debian
    {L("org.virt_manager.virt-manager"), L("com.apple.dt.Xcode")}, // Flatpak
    {L("io.podman_desktop.PodmanDesktop"), L("com.apple.dt.Xcode")}, // Flatpak
    {L("datagrip_datagrip"), L("com.apple.dt.Xcode")}, // Snap
    {L("dataspell_dataspell"), L("com.apple.dt.Xcode")}, // Snap
    {L("rustrover_rustrover"), L("com.apple.dt.Xcode")}, // Snap
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
    {L("org.gnome.gitg"), L("com.github.GitHubClient")}, // Debian, Flatpak
    {L("git-cola"), L("com.github.GitHubClient")}, // Debian
    {L("git-dag"), L("com.github.GitHubClient")}, // Debian
    {L("org.gnome.Meld"), L("com.github.GitHubClient")}, // Debian, Flatpak
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
    {L("org.kde.yakuake"), L("com.apple.Terminal")}, // Debian, Flatpak
    {L("guake"), L("com.apple.Terminal")}, // Debian
    {L("tilda"), L("com.apple.Terminal")}, // Debian
    {L("sakura"), L("com.apple.Terminal")}, // Debian
    {L("terminology"), L("com.apple.Terminal")}, // Debian
    {L("st"), L("com.apple.Terminal")}, // Debian
    {L("cool-retro-term"), L("com.apple.Terminal")}, // Debian
    {L("foot-server"), L("com.apple.Terminal")}, // Debian
    {L("app.devsuite.Ptyxis"), L("com.apple.Terminal")}, // Flatpak
    {L("com.raggesilver.BlackBox"), L("com.apple.Terminal")}, // Flatpak
    {L("tabby"), L("com.apple.Terminal")}, // vendor
    {L("org.contourterminal.Contour"), L("com.apple.Terminal")}, // vendor
    {L("com.rioterm.Rio"), L("com.apple.Terminal")}, // Flatpak
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
    {L("sylpheed"), L("com.apple.mail")}, // Debian
    {L("org.kde.kontact"), L("com.apple.mail")}, // Debian
    {L("eu.betterbird.Betterbird"), L("com.apple.mail")}, // Flatpak
    {L("net.thunderbird.Thunderbird"), L("com.apple.mail")}, // Flatpak
    {L("org.kde.korganizer"), L("org.gnome.Calendar")}, // Debian
    {L("Zoom"), L("us.zoom.xos")}, // vendor
    {L("zoom-client_zoom-client"), L("us.zoom.xos")}, // Snap
    {L("us.zoom.Zoom"), L("us.zoom.xos")}, // Flatpak
    {L("teams-for-linux"), L("com.microsoft.teams2")}, // vendor
    {L("teams-for-linux_teams-for-linux"), L("com.microsoft.teams2")}, // Snap
    {L("com.github.IsmaelMartinez.teams_for_linux"), L("com.microsoft.teams2")}, // Flatpak
    {L("org.telegram.desktop"), L("org.telegram.desktop")}, // Debian, Flatpak
    {L("telegram-desktop_telegram-desktop"), L("org.telegram.desktop")}, // Snap
    {L("pidgin"), L("com.apple.iChat")}, // Debian
    {L("im.dino.Dino"), L("com.apple.iChat")}, // Debian, Flatpak
    {L("org.gajim.Gajim"), L("com.apple.iChat")}, // Debian, Flatpak
    {L("org.kde.konversation"), L("com.apple.iChat")}, // Debian, Flatpak
    {L("org.gnome.Polari"), L("com.apple.iChat")}, // Debian, Flatpak
    {L("quasselclient"), L("com.apple.iChat")}, // Debian
    {L("io.github.Hexchat"), L("com.apple.iChat")}, // Debian, Flatpak
    {L("nheko"), L("com.tinyspeck.slackmacgap")}, // Debian
    {L("im.nheko.Nheko"), L("com.tinyspeck.slackmacgap")}, // Flatpak
    {L("org.kde.neochat"), L("com.tinyspeck.slackmacgap")}, // Debian, Flatpak
    {L("element-desktop"), L("com.tinyspeck.slackmacgap")}, // vendor
    {L("element-desktop_element-desktop"), L("com.tinyspeck.slackmacgap")}, // Snap
    {L("im.riot.Riot"), L("com.tinyspeck.slackmacgap")}, // Flatpak
    {L("org.gnome.Fractal"), L("com.tinyspeck.slackmacgap")}, // Flatpak
    {L("mattermost-desktop_mattermost-desktop"), L("com.tinyspeck.slackmacgap")}, // Snap
    {L("com.mattermost.Desktop"), L("com.tinyspeck.slackmacgap")}, // Flatpak
    {L("zulip"), L("com.tinyspeck.slackmacgap")}, // vendor
    {L("org.zulip.Zulip"), L("com.tinyspeck.slackmacgap")}, // Flatpak
    {L("ferdium"), L("com.tinyspeck.slackmacgap")}, // vendor
    {L("org.ferdium.Ferdium"), L("com.tinyspeck.slackmacgap")}, // Flatpak
    {L("vesktop"), L("com.hnc.Discord")}, // vendor
    {L("dev.vencord.Vesktop"), L("com.hnc.Discord")}, // Flatpak
    {L("com.rtosta.zapzap"), L("com.apple.MobileSMS")}, // Flatpak
    {L("org.jitsi.jitsi-meet"), L("us.zoom.xos")}, // Flatpak
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
    {L("org.darktable.darktable"), L("com.seriflabs.affinityphoto2")}, // Debian, Flatpak
    {L("rawtherapee"), L("com.seriflabs.affinityphoto2")}, // Debian
    {L("com.rawtherapee.RawTherapee"), L("com.seriflabs.affinityphoto2")}, // Flatpak
    {L("org.kde.digikam"), L("com.seriflabs.affinityphoto2")}, // Debian, Flatpak
    {L("mypaint"), L("com.seriflabs.affinityphoto2")}, // Debian
    {L("com.github.PintaProject.Pinta"), L("com.seriflabs.affinityphoto2")}, // Flatpak
    {L("scribus"), L("com.seriflabs.affinitydesigner2")}, // Debian
    {L("net.scribus.Scribus"), L("com.seriflabs.affinitydesigner2")}, // Flatpak
    {L("org.fontforge.FontForge"), L("com.adobe.illustrator")}, // Debian, Flatpak
    {L("org.gnome.Dia"), L("com.adobe.illustrator")}, // Debian, Flatpak
    {L("org.freecadweb.FreeCAD"), L("com.adobe.illustrator")}, // Debian
    {L("org.freecad.FreeCAD"), L("com.adobe.illustrator")}, // Flatpak
    {L("librecad"), L("com.adobe.illustrator")}, // Debian
    {L("openscad"), L("com.adobe.illustrator")}, // Debian
    {L("org.openscad.OpenSCAD"), L("com.adobe.illustrator")}, // Flatpak
    {L("org.kicad.kicad"), L("com.adobe.illustrator")}, // Debian, Flatpak
    {L("org.kicad.eeschema"), L("com.adobe.illustrator")}, // Debian
    {L("org.kicad.pcbnew"), L("com.adobe.illustrator")}, // Debian
    {L("drawio"), L("com.adobe.illustrator")}, // vendor
    {L("drawio_drawio"), L("com.adobe.illustrator")}, // Snap
    {L("com.jgraph.drawio.desktop"), L("com.adobe.illustrator")}, // Flatpak
    {L("com.authormore.penpotdesktop"), L("com.figma.Desktop")}, // Flatpak
    {L("com.icons8.Lunacy"), L("com.bohemiancoding.sketch3")}, // Flatpak
    // Video and sound
    {L("org.kde.kdenlive"), L("com.adobe.PremierePro")}, // Debian, Flatpak
    {L("org.shotcut.Shotcut"), L("com.adobe.PremierePro")}, // Debian, Flatpak
    {L("org.pitivi.Pitivi"), L("com.adobe.PremierePro")}, // Debian, Flatpak
    {L("com.obsproject.Studio"), L("com.adobe.PremierePro")}, // Debian, Flatpak
    {L("org.openshot.OpenShot"), L("com.adobe.PremierePro")}, // Debian, Flatpak
    {L("audacity"), L("com.adobe.PremierePro")}, // Debian
    {L("org.audacityteam.Audacity"), L("com.adobe.PremierePro")}, // Flatpak
    {L("lmms"), L("com.adobe.PremierePro")}, // Debian
    {L("io.lmms.LMMS"), L("com.adobe.PremierePro")}, // Flatpak
    {L("ardour"), L("com.adobe.PremierePro")}, // Debian
    {L("org.ardour.Ardour"), L("com.adobe.PremierePro")}, // Flatpak
    {L("cockos-reaper"), L("com.adobe.PremierePro")}, // vendor
    {L("fm.reaper.Reaper"), L("com.adobe.PremierePro")}, // Flatpak
    // Notes and plans
    {L("obsidian"), L("md.obsidian")}, // vendor
    {L("obsidian_obsidian"), L("md.obsidian")}, // Snap
    {L("md.obsidian.Obsidian"), L("md.obsidian")}, // Flatpak
    {L("notion-app"), L("notion.id")}, // vendor
    {L("notion-snap-reborn_notion-snap-reborn"), L("notion.id")}, // Snap
    {L("io.github.alainm23.planify"), L("com.culturedcode.ThingsMac")}, // Flatpak
    {L("zim"), L("md.obsidian")}, // Debian
    {L("org.zim_wiki.Zim"), L("md.obsidian")}, // Flatpak
    {L("cherrytree"), L("md.obsidian")}, // Debian
    {L("net.giuspen.cherrytree"), L("md.obsidian")}, // Flatpak
    {L("org.gnome.Gnote"), L("md.obsidian")}, // Debian, Flatpak
    {L("com.github.xournalpp.xournalpp"), L("md.obsidian")}, // Debian, Flatpak
    {L("com.github.flxzt.rnote"), L("md.obsidian")}, // Flatpak
    {L("joplin-desktop_joplin-desktop"), L("md.obsidian")}, // Snap
    {L("net.cozic.joplin_desktop"), L("md.obsidian")}, // Flatpak
    {L("com.logseq.Logseq"), L("md.obsidian")}, // Flatpak
    {L("io.anytype.anytype"), L("md.obsidian")}, // Flatpak
    {L("org.standardnotes.standardnotes"), L("md.obsidian")}, // Flatpak
    {L("com.github.zadam.trilium"), L("md.obsidian")}, // Flatpak
    {L("org.gnome.Todo"), L("com.culturedcode.ThingsMac")}, // Debian, Flatpak
    {L("com.super_productivity.SuperProductivity"), L("com.culturedcode.ThingsMac")}, // Flatpak
    {L("ticktick"), L("com.culturedcode.ThingsMac")}, // vendor
    {L("com.ticktick.TickTick"), L("com.culturedcode.ThingsMac")}, // Flatpak
    {L("io.github.mrvladus.List"), L("com.culturedcode.ThingsMac")}, // Flatpak
    // Office and study
    {L("libreoffice-writer"), L("com.microsoft.Word")}, // Debian
    {L("org.libreoffice.LibreOffice.writer"), L("com.microsoft.Word")}, // Flatpak
    {L("libreoffice-calc"), L("com.microsoft.Excel")}, // Debian
    {L("org.libreoffice.LibreOffice.calc"), L("com.microsoft.Excel")}, // Flatpak
    {L("libreoffice-impress"), L("com.microsoft.Powerpoint")}, // Debian
    {L("org.libreoffice.LibreOffice.impress"), L("com.microsoft.Powerpoint")}, // Flatpak
    {L("libreoffice-startcenter"), L("com.microsoft.Word")}, // Debian
    {L("org.libreoffice.LibreOffice"), L("com.microsoft.Word")}, // Flatpak
    {L("libreoffice_libreoffice"), L("com.microsoft.Word")}, // Snap
    {L("libreoffice_writer"), L("com.microsoft.Word")}, // Snap
    {L("libreoffice_calc"), L("com.microsoft.Excel")}, // Snap
    {L("libreoffice_impress"), L("com.microsoft.Powerpoint")}, // Snap
    {L("onlyoffice-desktopeditors"), L("com.microsoft.Word")}, // vendor
    {L("onlyoffice-desktopeditors_onlyoffice-desktopeditors"), L("com.microsoft.Word")}, // Snap
    {L("org.onlyoffice.desktopeditors"), L("com.microsoft.Word")}, // Flatpak
    {L("wps-office-wps"), L("com.microsoft.Word")}, // vendor
    {L("com.wps.Office"), L("com.microsoft.Word")}, // Flatpak
    {L("wps-office-et"), L("com.microsoft.Excel")}, // vendor
    {L("wps-office-wpp"), L("com.microsoft.Powerpoint")}, // vendor
    {L("abiword"), L("com.microsoft.Word")}, // Debian
    {L("com.abisource.AbiWord"), L("com.microsoft.Word")}, // Flatpak
    {L("org.gnome.gitlab.somas.Apostrophe"), L("com.microsoft.Word")}, // Debian, Flatpak
    {L("ghostwriter"), L("com.microsoft.Word")}, // Debian
    {L("org.kde.ghostwriter"), L("com.microsoft.Word")}, // Flatpak
    {L("focuswriter"), L("com.microsoft.Word")}, // Debian
    {L("org.gottcode.FocusWriter"), L("com.microsoft.Word")}, // Flatpak
    {L("manuskript"), L("com.microsoft.Word")}, // Debian
    {L("me.mitya57.ReText"), L("com.microsoft.Word")}, // Debian, Flatpak
    {L("texstudio"), L("com.microsoft.Word")}, // Debian
    {L("org.texstudio.TeXstudio"), L("com.microsoft.Word")}, // Flatpak
    {L("texmaker"), L("com.microsoft.Word")}, // Debian
    {L("org.kde.kile"), L("com.microsoft.Word")}, // Debian, Flatpak
    {L("lyx"), L("com.microsoft.Word")}, // Debian
    {L("org.lyx.LyX"), L("com.microsoft.Word")}, // Flatpak
    {L("gummi"), L("com.microsoft.Word")}, // Debian
    {L("Zettlr"), L("com.microsoft.Word")}, // window class
    {L("com.zettlr.Zettlr"), L("com.microsoft.Word")}, // Flatpak
    {L("marktext"), L("com.microsoft.Word")}, // vendor
    {L("com.github.marktext.marktext"), L("com.microsoft.Word")}, // Flatpak
    {L("gnumeric"), L("com.microsoft.Excel")}, // Debian
    {L("org.gnumeric.Gnumeric"), L("com.microsoft.Excel")}, // Flatpak
    {L("gnucash"), L("com.microsoft.Excel")}, // Debian
    {L("org.gnucash.GnuCash"), L("com.microsoft.Excel")}, // Flatpak
    {L("homebank"), L("com.microsoft.Excel")}, // Debian
    {L("fr.free.Homebank"), L("com.microsoft.Excel")}, // Flatpak
    {L("org.gnome.Evince"), L("com.apple.iBooksX")}, // Debian, Flatpak
    {L("org.gnome.Papers"), L("com.apple.iBooksX")}, // Flatpak
    {L("org.kde.okular"), L("com.apple.iBooksX")}, // Debian, Flatpak
    {L("org.pwmt.zathura"), L("com.apple.iBooksX")}, // Debian, Flatpak
    {L("atril"), L("com.apple.iBooksX")}, // Debian
    {L("com.github.johnfactotum.Foliate"), L("com.apple.iBooksX")}, // Debian, Flatpak
    {L("calibre-gui"), L("com.apple.iBooksX")}, // Debian
    {L("calibre-ebook-viewer"), L("com.apple.iBooksX")}, // Debian
    {L("com.calibre_ebook.calibre"), L("com.apple.iBooksX")}, // Flatpak
    {L("zotero"), L("com.apple.iBooksX")}, // vendor
    {L("org.zotero.Zotero"), L("com.apple.iBooksX")}, // Flatpak
    {L("anki"), L("net.ankiweb.dtop")}, // vendor
    {L("net.ankiweb.Anki"), L("net.ankiweb.dtop")}, // Flatpak
    // Browsers whose ids and names do not show it
    {L("google-chrome"), L("com.google.Chrome")}, // vendor
    {L("microsoft-edge"), L("com.microsoft.edgemac")}, // vendor
    {L("com.microsoft.Edge"), L("com.microsoft.edgemac")}, // Flatpak
    {L("org.gnome.Epiphany"), L("com.apple.Safari")}, // Debian, Flatpak
    {L("org.kde.falkon"), L("org.chromium.Chromium")}, // Debian, Flatpak
    {L("librewolf"), L("org.mozilla.firefox")}, // vendor
    {L("io.gitlab.librewolf-community"), L("org.mozilla.firefox")}, // Flatpak
    {L("app.zen_browser.zen"), L("org.mozilla.firefox")}, // Flatpak
    {L("torbrowser"), L("org.mozilla.firefox")}, // Debian
    {L("org.torproject.torbrowser-launcher"), L("org.mozilla.firefox")}, // Flatpak
    {L("one.ablaze.floorp"), L("org.mozilla.firefox")}, // Flatpak
    {L("net.waterfox.waterfox"), L("org.mozilla.firefox")}, // Flatpak
    {L("net.mullvad.MullvadBrowser"), L("org.mozilla.firefox")}, // Flatpak
    {L("google-chrome-beta"), L("com.google.Chrome")}, // vendor
    {L("google-chrome-unstable"), L("com.google.Chrome")}, // vendor
    {L("org.qutebrowser.qutebrowser"), L("com.google.Chrome")}, // Debian, Flatpak
    {L("org.kde.konqueror"), L("com.google.Chrome")}, // Debian
    {L("org.kde.angelfish"), L("com.google.Chrome")}, // Debian, Flatpak
};
// clang-format on

QString key(const QString& entryId) { return entryId.toCaseFolded(); }

QHash<QString, L> makeTable() {
    QHash<QString, L> table;
    for (const Row& row : kRows)
        table.insert(key(row.entryId), row.identity);
    return table;
}

/// Returns the id without the UUID that some installers append.
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
