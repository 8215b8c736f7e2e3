#include "sensing/SuggestionTables.h"

namespace vantle::suggestiontables {

namespace {

using Word = std::string_view;

constexpr Word kBrowserWords[] = {"safari",        "google.chrome", "chromium",
                                  "firefox",       "brave",         "company.thebrowser",
                                  "vivaldi",       "opera",         "com.microsoft.edgemac",
                                  "microsoft edge"};

constexpr Word kHostPrefixes[] = {"com.github.", "io.github."};

constexpr Word kAssistantsWords[] = {"chatgpt", "openai",     "claude", "anthropic",
                                     "codex",   "perplexity", "gemini", "copilot"};
constexpr Word kAssistantsHints[] = {"build", "code", "develop", "engineer", "product"};

constexpr Word kCodeWords[] = {
    "xcode",      "visual studio code", "vscode",  "cursor", "windsurf",       "zed",    "sublime",
    "jetbrains",  "terminal",           "iterm",   "warp",   "ghostty",        "github", "tower",
    "sourcetree", "gitkraken",          "postman", "docker", "android studio", "replit"};
constexpr Word kCodeHints[] = {"build", "code", "develop", "engineer", "software", "product"};

constexpr Word kDesignWords[] = {"figma",    "sketch", "photoshop", "illustrator",
                                 "affinity", "framer", "canva",     "pixelmator",
                                 "blender",  "spline", "rive"};
constexpr Word kDesignHints[] = {"design", "product", "build"};

constexpr Word kVideoWords[] = {"final cut",     "premiere", "davinci", "capcut", "screenflow",
                                "screen studio", "descript", "imovie",  "loom"};
constexpr Word kVideoHints[] = {"video", "content", "film", "edit", "marketing", "design"};

constexpr Word kWritingWords[] = {"ulysses",       "ia writer", "shinyfrog.bear",     "lukilabs",
                                  "scrivener",     "typora",    "com.microsoft.word", "iwork.pages",
                                  "iwork.keynote", "powerpoint"};
constexpr Word kWritingHints[] = {"writing", "write", "content", "blog", "book"};

constexpr Word kStudyWords[] = {"anki",   "quizlet", "goodnotes", "notability",
                                "kindle", "ibooks",  "pdf expert"};
constexpr Word kStudyHints[] = {"study", "learn", "research", "read", "school"};

constexpr Word kMarketingWords[] = {"mailchimp", "hubspot", "buffer",        "hootsuite",
                                    "later",     "social",  "youtube studio"};
constexpr Word kMarketingHints[] = {"marketing", "content", "growth", "distribution"};

constexpr Word kTalkWords[] = {"slack",    "discord",  "zoom", "teams",      "telegram",
                               "messages", "facetime", "mail", "superhuman", "whatsapp"};
constexpr Word kTalkHints[] = {"connection", "community", "sales", "network", "founder"};

constexpr Word kSellingWords[] = {"app store connect", "testflight", "shopify", "gumroad",
                                  "stripe"};
constexpr Word kSellingHints[] = {"distribution", "launch", "growth", "marketing", "founder"};

constexpr Word kNotesWords[] = {"notion",       "linear",   "things",      "obsidian",
                                "asana",        "trello",   "todoist",     "calendar",
                                "reminders",    "airtable", "fantastical", "com.microsoft.excel",
                                "iwork.numbers"};
constexpr Word kNotesHints[] = {"founder", "ops", "operation", "productivity", "admin"};

constexpr Group kGroups[] = {{kAssistantsWords, "building", "code", kAssistantsHints},
                             {kCodeWords, "building", "code", kCodeHints},
                             {kDesignWords, "product_design", "design", kDesignHints},
                             {kVideoWords, "marketing", "design", kVideoHints},
                             {kWritingWords, "marketing", "writing", kWritingHints},
                             {kStudyWords, "study", "study", kStudyHints},
                             {kMarketingWords, "marketing", "business", kMarketingHints},
                             {kTalkWords, "connections", "business", kTalkHints},
                             {kSellingWords, "distribution", "business", kSellingHints},
                             {kNotesWords, "founder_ops", "business", kNotesHints}};

} // namespace

std::span<const std::string_view> browserWords() { return kBrowserWords; }

std::span<const std::string_view> hostPrefixes() { return kHostPrefixes; }

std::span<const Group> groups() { return kGroups; }

} // namespace vantle::suggestiontables
