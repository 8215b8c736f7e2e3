// The port of what other programs may read of the session.
#pragma once

#include <QString>

#include <cstdint>
#include <functional>

namespace vantle {

/// Read only: bars show the clock from it, and change nothing. Main thread.
class SessionStatus {
public:
    struct Values {
        QString state = QStringLiteral("idle"); ///< or "running" or "paused"
        QString skillName;                      ///< empty while no session is open
        QString skillColor;                     ///< "#rrggbb"; empty while no session is open
        std::int64_t activeSeconds = 0;         ///< of the open session
        std::int64_t asOf = 0;                  ///< seconds since 1970; what both counts are as of
        std::int64_t todaySeconds = 0;          ///< of the log, and those of the open session
    };
    using Read = std::function<Values()>;

    virtual ~SessionStatus() = default;

    /// Answers questions by `read` from now on, which is called for each of them and not before;
    /// an empty one ends that.
    virtual void publish(Read read) = 0;

    /// The state, the skill or the log has changed. Does not call `read`.
    virtual void noteChange() = 0;
};

} // namespace vantle
