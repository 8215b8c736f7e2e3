// Auto mode on a virtual disk, clock and desktop.
#pragma once

#include "fakes/FakeFrontmostApp.h"
#include "fakes/FakeIdleSource.h"
#include "fakes/FaultyFileSystem.h"
#include "fakes/MemoryFileSystem.h"
#include "fakes/MemoryPreferences.h"
#include "fakes/VirtualTime.h"
#include "sensing/AutoRules.h"
#include "sensing/AutoRulesJson.h"
#include "support/QtPrinters.h"
#include "support/Text.h"
#include "tracking/AppPaths.h"
#include "tracking/JsonForm.h"
#include "tracking/Settings.h"
#include "tracking/SkillList.h"

#include <gtest/gtest.h>

#include <optional>

namespace vantle {

using tests::text;

inline Skill namedSkill(const char* id, const char* name) {
    return {text(id), text(name), 0x123456, false};
}

struct AutoWorld {
    using Operation = fakes::FaultyFileSystem::Operation;

    AutoWorld() {
        time.attach(queue);
        skills.emplace(paths, queue, skillPreferences);
    }

    /// Replaces the user's skills.
    void setSkills(const std::vector<Skill>& list) {
        disk.setContent(QStringLiteral("/data/Vantle/skills.json"), json::encode(list));
        settings::skillsMigrationVersion.write(skillPreferences, 1);
        skills.emplace(paths, queue, skillPreferences);
    }

    void put(const QByteArray& content) { disk.setContent(file, content); }
    void put(const AutoRulesState& state) { put(json::encode(state).value()); }
    [[nodiscard]] bool hasFile() const { return disk.content(file).has_value(); }

    /// Returns what the next run would read, after all writes.
    [[nodiscard]] AutoRulesState stored() {
        time.settle();
        const auto content = disk.content(file);
        if (!content) return {};
        return json::decodeAutoRules(*content).value_or(StoredAutoRules()).state;
    }

    /// Returns the writes of the file since the last call.
    [[nodiscard]] int takeWrites() {
        time.settle();
        int writes = 0;
        for (const auto& call : files.calls())
            if (call.operation == Operation::Rename && call.target == file) ++writes;
        files.forgetCalls();
        return writes;
    }

    [[nodiscard]] AutoRules::Environment rulesEnvironment() {
        return {time, time, queue, paths, *skills};
    }

    const QString file = QStringLiteral("/data/Vantle/auto-rules.json");
    const QString temporaryFile = QStringLiteral(".auto-rules.json.*.tmp");
    fakes::VirtualTime time;
    fakes::ManualQueue queue;
    fakes::MemoryFileSystem disk;
    fakes::FaultyFileSystem files{disk};
    AppPaths paths{files, QStringLiteral("/data")};
    fakes::MemoryPreferences skillPreferences;
    std::optional<SkillList> skills; ///< replaced in place
};

} // namespace vantle
