// A log of any bytes: what is read of it is acceptable, and no change of one record disturbs
// another.
#include "Input.h"
#include "fakes/MemoryFileSystem.h"
#include "tracking/AppPaths.h"
#include "tracking/SessionLog.h"

#include <simdjson.h>

namespace vantle::fuzz {
namespace {

void checkRead(const LogRead& log) {
    for (std::size_t i = 0; i < log.sessions.size(); ++i) {
        promise(isAcceptable(log.sessions[i]), "only acceptable records are read");
        promise(i == 0 || log.sessions[i - 1].endedAt <= log.sessions[i].endedAt, "oldest first");
    }
}

LogRead with(const LogRead& log, const QUuid& id, const SessionLog::Transform& transform) {
    LogRead result{{}, log.unreadable};
    for (const Session& session : log.sessions) {
        const auto changed = session.id == id ? transform(session) : std::optional(session);
        if (changed) result.sessions.push_back(*changed);
    }
    return result;
}

void checkRewrite(const SessionLog& log, const QUuid& id, const SessionLog::Transform& transform) {
    const LogRead before = log.readAll();
    const auto outcome = log.rewrite(id, transform);
    const LogRead after = log.readAll();
    const bool changed = outcome && outcome.value();
    const LogRead expected = changed ? with(before, id, transform) : before;
    promise(after.sessions == expected.sessions, "a change touches only its record");
    // Records that break the rules can be deleted or mended as well.
    promise(after.unreadable <= before.unreadable, "no change makes a record unreadable");
}

} // namespace
} // namespace vantle::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantle;
    const QByteArrayView text = fuzz::viewOf(data, size);
    const bool isText = simdjson::validate_utf8(text.data(), size);

    fakes::MemoryFileSystem disk;
    const AppPaths paths(disk, QStringLiteral("/data"));
    disk.setContent(paths.sessionsFile(), text.toByteArray());
    const SessionLog log(paths);
    const LogRead read = log.readAll();
    fuzz::checkRead(read);
    fuzz::promise(isText || (read.sessions.empty() && read.unreadable == 0),
                  "a bad byte hides all");
    if (read.sessions.empty()) return 0;

    const QUuid first = read.sessions.front().id;
    const QUuid last = read.sessions.back().id;
    fuzz::checkRewrite(log, first, [](const Session& session) {
        Session changed = session;
        changed.note = QStringLiteral("changed");
        return std::optional(changed);
    });
    fuzz::checkRewrite(log, last, [](const Session& session) { return std::optional(session); });
    fuzz::checkRewrite(log, first, [](const Session&) { return std::optional<Session>(); });
    return 0;
}
