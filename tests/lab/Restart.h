// The next start of the program after a life was cut off, and what it must find.
#pragma once

#include "lab/ScriptedLife.h"

#include <vector>

namespace vantle::tests {

/// One deed of a life: what was there before and after it.
struct Step {
    const char* deed = "";
    Account before;
    Account after;
    QMap<QString, QString> preferences;
    std::vector<ScriptedLife::OpenSession> open; ///< at any time of it
};

/// What was known at a moment that may have been the last.
struct Moment {
    Date now;
    std::optional<ScriptedLife::OpenSession> open;
};

/// Starts the program an hour after the moment, takes the offer, and looks at what is there. Step
/// and moment must outlive it.
class Restart {
public:
    /// On the disk in memory of `world`, which is empty.
    Restart(const Step& step, const Moment& moment);
    /// On that file system.
    Restart(const Step& step, const Moment& moment, FileSystem& storage);
    ~Restart();
    Restart(const Restart&) = delete;
    Restart& operator=(const Restart&) = delete;

    /// Returns the promises that do not hold. To be called once.
    QStringList run();

    /// What the crash left and what the start made of it: the files, and the end of the log.
    [[nodiscard]] QByteArray story() const;
    [[nodiscard]] bool isTorn() const { return m_left.isTorn(); }
    [[nodiscard]] bool isHidden() const { return m_left.isHidden(); }

    ModelWorld world;

private:
    void expect(bool holds, const QString& promise);
    void checkRecords();
    /// Whether it is the record of a session that was open in this step.
    [[nodiscard]] bool isOpen(const QString& id) const;
    void checkOpenSession();
    void checkOtherFiles();
    void checkThatWorkGoesOn();

    const Step& m_step;
    const Moment& m_moment;
    Account m_left;  ///< by the crash
    Account m_found; ///< after the start, with the offer taken
    QStringList m_broken;
};

} // namespace vantle::tests
