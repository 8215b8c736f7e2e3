// A life in which the file system fails, and what must hold all the same.
#pragma once

#include "lab/ScriptedLife.h"

#include <functional>
#include <vector>

namespace vantle::tests {

class FaultyLife {
public:
    using Operation = fakes::FaultyFileSystem::Operation;

    /// One call fails, or every call of an operation while one deed is done.
    struct Fault {
        int code = 0;
        int call = 0; ///< counted from 1 over the life; 0 for the other kind, -1 for none
        std::size_t deed = 0;
        Operation operation = Operation::Open;
    };

    /// Half of a write goes down before it fails: so every fault of a write is a short write as
    /// well.
    FaultyLife(std::uint32_t seed, const Fault& fault);
    /// On that file system, which may fail by itself, with `fault.code`.
    FaultyLife(std::uint32_t seed, const Fault& fault, FileSystem& storage);

    /// Lives it and looks at it after each deed. Returns the promises that do not hold, of the
    /// first deed that breaks one.
    QStringList run();

    /// Whether a call that `storage` failed by itself was such a one on a file of that name.
    std::function<bool(Operation, const char* name)> failedBelow = [](auto, auto) { return false; };
    /// Tells the number of the deed that is about to be done.
    std::function<void(std::size_t deed)> onDeed = [](auto) {};

    [[nodiscard]] std::size_t calls() const { return life.world.files.calls().size(); }
    [[nodiscard]] bool hit() const { return !m_failed.empty(); }
    /// Which calls failed.
    [[nodiscard]] QString story() const;

    ScriptedLife life;

private:
    void expect(bool holds, const QString& promise);
    void noteFailed(std::size_t before, bool stands);
    [[nodiscard]] bool failed(Operation operation, const char* name) const;
    [[nodiscard]] TrackerCore& tracker() const { return life.world.model->tracker(); }
    void checkClock();
    void checkText();
    void checkSuccess();
    void checkRecords(const Account& account);
    void checkSkillsAndRules(const Account& account);
    void checkTemporaries(const Account& account);

    const Fault m_fault;
    std::vector<fakes::FaultyFileSystem::Call> m_failed;
    QStringList m_broken;
};

} // namespace vantle::tests
