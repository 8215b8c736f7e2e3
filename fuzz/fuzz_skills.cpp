// A skills file of any bytes: the list that comes of it is usable, saved, and stays as it is.
#include "Input.h"
#include "fakes/MemoryFileSystem.h"
#include "fakes/MemoryPreferences.h"
#include "fakes/VirtualTime.h"
#include "tracking/AppPaths.h"
#include "tracking/JsonForm.h"
#include "tracking/SkillList.h"

#include <algorithm>

namespace vantle::fuzz {
namespace {

void checkList(const std::vector<Skill>& skills) {
    promise(!skills.empty() && skills.size() <= std::size_t(Skill::maxCount),
            "one to eight skills");
    for (const Skill& skill : skills) {
        promise(Skill::isAcceptableId(skill.id), "an id of letters, numbers and joiners");
        promise(Skill::isAcceptableName(skill.name), "a name of 1 to 20 characters");
        promise(Skill::cleanedName(skill.name) == skill.name, "a name that is cleaned");
        promise(skill.hexRGB <= Skill::colorMask, "a colour of 24 bits");
        promise(std::ranges::count(skills, skill.id, &Skill::id) == 1, "ids that differ");
    }
}

} // namespace
} // namespace vantle::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantle;
    const QByteArrayView text = fuzz::viewOf(data, size);
    if (const auto skills = json::decodeSkills(text))
        fuzz::promise(json::decodeSkills(json::encode(*skills)) == skills, "skills read back");

    fakes::MemoryFileSystem disk;
    fakes::MemoryPreferences preferences;
    fakes::ManualQueue queue;
    const AppPaths paths(disk, QStringLiteral("/data"));
    disk.setContent(paths.skillsFile(), text.toByteArray());
    SkillList list(paths, queue, preferences);
    fuzz::checkList(list.all());
    SkillList again(paths, queue, preferences);
    fuzz::promise(again.all() == list.all(), "a loaded list stays as it is");

    static_cast<void>(list.addCustom(
        QString::fromUtf8(text.first(std::min<qsizetype>(text.size(), 40))), 0xFFFFFFFF));
    fuzz::checkList(list.all());
    return 0;
}
