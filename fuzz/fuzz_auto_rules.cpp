// Auto mode's memory of any bytes: the rules that come of it have a meaning, are saved, and stay as
// they are.
#include "Input.h"
#include "fakes/MemoryFileSystem.h"
#include "fakes/MemoryPreferences.h"
#include "fakes/VirtualTime.h"
#include "sensing/AutoRules.h"
#include "sensing/AutoRulesJson.h"
#include "tracking/AppPaths.h"
#include "tracking/SkillList.h"

#include <algorithm>

namespace vantle::fuzz {
namespace {

void checkRules(const AutoRules& rules, const std::vector<Skill>& skills, Date now) {
    for (const QString& ruling : rules.rules())
        promise(autorules::isValidRuling(ruling, skills), "rulings that mean something");
    for (const QString& bundleId : rules.automaticRuleBundleIds())
        promise(rules.rules().contains(bundleId), "marks that belong to rules");
    promise(rules.seenApps().size() <= AutoRules::maxSeenApps, "forty applications at the most");
    for (const SeenApp& app : rules.seenApps()) {
        promise(!app.bundleId.isEmpty() && !app.name.isEmpty(), "applications with a name");
        promise(app.lastSeenAt >= now - Seconds(90.0 * 86400), "applications seen lately");
        promise(std::ranges::count(rules.seenApps(), app.bundleId, &SeenApp::bundleId) == 1,
                "applications that differ");
    }
}

} // namespace
} // namespace vantle::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantle;
    const QByteArrayView text = fuzz::viewOf(data, size);
    if (const auto stored = json::decodeAutoRules(text)) {
        const auto again = json::decodeAutoRules(json::encode(stored->state).value());
        fuzz::promise(again && again->state == stored->state, "rules read back");
    }

    fakes::MemoryFileSystem disk;
    fakes::MemoryPreferences preferences;
    fakes::ManualQueue queue;
    fakes::VirtualTime time;
    time.attach(queue);
    const AppPaths paths(disk, QStringLiteral("/data"));
    SkillList skills(paths, queue, preferences);
    disk.setContent(paths.autoRulesFile(), text.toByteArray());
    AutoRules rules({time, time, queue, paths, skills});
    rules.loadIfNeeded();
    time.settle();
    fuzz::checkRules(rules, skills.all(), time.now());

    AutoRules again({time, time, queue, paths, skills});
    again.loadIfNeeded();
    fuzz::promise(again.rules() == rules.rules() && again.seenApps() == rules.seenApps() &&
                      again.automaticRuleBundleIds() == rules.automaticRuleBundleIds(),
                  "loaded rules stay as they are");
    return 0;
}
