#include "lab/RealLife.h"

#include <algorithm>
#include <cstring>

namespace vantle::tests {

std::vector<Step> stepsOf(std::uint32_t seed) {
    ScriptedLife life(seed, ScriptedLife::homeOf(seed));
    std::vector<Step> steps;
    steps.reserve(life.deeds().size());
    const auto noteOpen = [&] {
        if (const auto open = life.openSession()) steps.back().open.push_back(*open);
    };
    life.world.files.onCall = [&](auto) { noteOpen(); };
    for (const ScriptedLife::Deed& deed : life.deeds()) {
        steps.push_back({deed.name, Account::of(life.world.storage), {}, life.preferences(), {}});
        noteOpen();
        life.perform(deed);
        noteOpen();
        steps.back().after = Account::of(life.world.storage);
    }
    life.world.files.onCall = nullptr;
    return steps;
}

void RealLife::tell(const ScriptedLife& life) const {
    const auto open = life.openSession();
    m_told->now = epochSeconds(life.world.time.now());
    m_told->isOpen = open.has_value();
    m_told->open = open.value_or(ScriptedLife::OpenSession());
}

Ending RealLife::live(const Decide& decide) {
    const auto work = [this](const std::function<void()>& watch) {
        RootedFileSystem disk(m_root);
        ScriptedLife life(m_seed, ScriptedLife::homeOf(m_seed), disk);
        life.world.files.onCall = [&](auto) { tell(life); };
        watch();
        for (const ScriptedLife::Deed& deed : life.deeds()) {
            tell(life);
            life.perform(deed);
            ++m_told->deed;
        }
        life.world.files.onCall = nullptr;
    };
    return supervise(m_root, work,
                     [&](const SystemCall& call) { return decide(call, m_told->deed); });
}

Ending RealLife::liveWithFaults(int code, const Decide& decide) {
    const auto work = [&](const std::function<void()>& watch) {
        RootedFileSystem disk(m_root);
        FaultyLife life(m_seed, {code, -1, 0, {}}, disk);
        life.onDeed = [this](std::size_t deed) { m_told->deed = deed; };
        life.failedBelow = [this](FaultyLife::Operation operation, const char*) {
            return (operation == FaultyLife::Operation::SetMode && m_told->failedMode) ||
                   (operation == FaultyLife::Operation::Remove && m_told->failedRemoval);
        };
        watch();
        const QByteArray broken = life.run().join(QStringLiteral("; ")).toUtf8();
        std::memcpy(m_told->broken.data(), broken.constData(),
                    std::min(std::size_t(broken.size()), m_told->broken.size() - 1));
    };
    return supervise(m_root, work, [&](const SystemCall& call) {
        const Verdict verdict = decide(call, m_told->deed);
        if (verdict.kind == Verdict::Kind::Fail) {
            const QLatin1String name(call.name);
            if (name == QLatin1String("chmod") &&
                call.path.endsWith(QLatin1String("sessions.jsonl")))
                m_told->failedMode = true;
            if (name == QLatin1String("unlink")) m_told->failedRemoval = true;
        }
        return verdict;
    });
}

Moment RealLife::moment() const {
    Moment moment{dateFromEpoch(m_told->now), std::nullopt};
    if (m_told->isOpen) moment.open = m_told->open;
    return moment;
}

} // namespace vantle::tests
