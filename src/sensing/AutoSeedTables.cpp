#include "sensing/AutoSeedTables.h"

namespace vantle::autoseeds {

namespace {

constexpr const char* kDesignTools[] = {
    "com.figma.Desktop",     "com.bohemiancoding.sketch3",      "com.adobe.Photoshop",
    "com.adobe.illustrator", "com.seriflabs.affinitydesigner2", "com.seriflabs.affinityphoto2",
    "com.framer.desktop"};

constexpr const char* kCurrentBuilding[] = {
    "com.apple.dt.Xcode",    "com.microsoft.VSCode",      "com.todesktop.230313mzl4w4u92",
    "com.codeium.windsurf",  "com.exafunction.windsurf",  "dev.zed.Zed",
    "com.sublimetext.4",     "com.google.android.studio", "com.anthropic.claudefordesktop",
    "com.openai.chat",       "com.openai.codex",          "ai.perplexity.mac",
    "com.apple.Terminal",    "com.googlecode.iterm2",     "dev.warp.Warp-Stable",
    "com.mitchellh.ghostty", "com.github.GitHubClient"};

constexpr const char* kCurrentConnections[] = {
    "com.tinyspeck.slackmacgap", "com.hnc.Discord",      "com.apple.mail",        "us.zoom.xos",
    "com.microsoft.teams2",      "org.telegram.desktop", "ru.keepcoder.Telegram", "com.apple.iChat",
    "com.apple.MobileSMS"};

constexpr const char* kCurrentFounderOps[] = {"notion.id", "com.linear",
                                              "com.culturedcode.ThingsMac", "md.obsidian"};

constexpr const char* kLegacyCode[] = {"com.apple.dt.Xcode",
                                       "com.microsoft.VSCode",
                                       "com.todesktop.230313mzl4w4u92",
                                       "com.codeium.windsurf",
                                       "com.exafunction.windsurf",
                                       "dev.zed.Zed",
                                       "com.sublimetext.4",
                                       "com.googlecode.iterm2",
                                       "com.google.android.studio",
                                       "com.jetbrains.intellij",
                                       "com.jetbrains.intellij.ce",
                                       "com.jetbrains.WebStorm",
                                       "com.jetbrains.PyCharm",
                                       "com.jetbrains.pycharm.ce",
                                       "com.jetbrains.PhpStorm",
                                       "com.jetbrains.goland",
                                       "com.jetbrains.CLion",
                                       "com.jetbrains.rubymine",
                                       "com.jetbrains.rider",
                                       "com.anthropic.claudefordesktop",
                                       "com.openai.chat",
                                       "com.openai.codex",
                                       "ai.perplexity.mac",
                                       "com.apple.Terminal",
                                       "dev.warp.Warp-Stable",
                                       "com.mitchellh.ghostty",
                                       "com.github.GitHubClient"};

constexpr const char* kLegacyWriting[] = {"com.ulyssesapp.mac", "pro.writer.mac",
                                          "net.shinyfrog.bear", "com.lukilabs.lukiapp",
                                          "com.microsoft.Word", "com.apple.iWork.Pages"};

constexpr const char* kLegacyStudy[] = {"net.ankiweb.dtop", "com.apple.iBooksX"};

constexpr const char* kLegacyBusiness[] = {"com.tinyspeck.slackmacgap",
                                           "com.hnc.Discord",
                                           "com.apple.mail",
                                           "us.zoom.xos",
                                           "com.microsoft.teams2",
                                           "org.telegram.desktop",
                                           "ru.keepcoder.Telegram",
                                           "com.apple.iChat",
                                           "com.apple.MobileSMS",
                                           "notion.id",
                                           "com.linear"};

// Design tools count as building unless a design skill exists: the later row wins.
constexpr Row kCurrentRows[] = {{"building", kCurrentBuilding},
                                {"building", kDesignTools},
                                {"product_design", kDesignTools},
                                {"connections", kCurrentConnections},
                                {"founder_ops", kCurrentFounderOps}};

constexpr Row kLegacyRows[] = {{"design", kDesignTools},
                               {"code", kLegacyCode},
                               {"writing", kLegacyWriting},
                               {"study", kLegacyStudy},
                               {"business", kLegacyBusiness}};

} // namespace

std::span<const Row> current() { return kCurrentRows; }

std::span<const Row> legacy() { return kLegacyRows; }

} // namespace vantle::autoseeds
