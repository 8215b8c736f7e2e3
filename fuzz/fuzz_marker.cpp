// A marker of any bytes: it reads back as it is written, and what is offered of it can be logged.
#include "Input.h"
#include "tracking/CrashRecovery.h"
#include "tracking/JsonForm.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantle;
    const auto marker = json::decodeMarker(fuzz::viewOf(data, size));
    if (!marker) return 0;
    const auto encoded = json::encode(*marker);
    fuzz::promise(encoded.ok(), "what was read can be written");
    fuzz::promise(json::decodeMarker(encoded.value()) == marker, "and reads back the same");

    const std::int64_t seconds = recovery::recoverableSeconds(*marker);
    fuzz::promise(seconds >= 0, "no negative credit");
    const auto candidate = recovery::recoveryCandidate(*marker);
    if (!candidate) return 0;
    fuzz::promise(isAcceptable(*candidate), "an offer can be logged");
    fuzz::promise(candidate->activeSeconds == seconds && seconds >= 60, "an offer is a minute");
    const auto line = json::encode(*candidate);
    fuzz::promise(line && json::decodeSession(line.value()) == candidate, "and reads back too");
    return 0;
}
