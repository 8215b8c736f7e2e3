// A log of any bytes: the quick reader and the full decoder agree on every line.
#include "Input.h"
#include "tracking/JsonForm.h"
#include "tracking/SessionLines.h"

#include <simdjson.h>

namespace vantle::fuzz {
namespace {

/// Line by line through the full decoder, and at once through the reader of whole logs.
void compareReaders(QByteArrayView text) {
    std::vector<std::optional<Session>> expected;
    sessionlines::forEachLine(text, [&](QByteArrayView line) {
        expected.push_back(json::decodeSession(line));
        promise(sessionlines::decode(line) == expected.back(), "both readers agree on a line");
    });
    std::size_t next = 0;
    sessionlines::Reader().read(text, [&](QByteArrayView, const std::optional<Session>& session) {
        promise(next < expected.size() && session == expected[next], "both readers see one log");
        ++next;
    });
    promise(next == expected.size(), "both readers see every line");
}

} // namespace
} // namespace vantle::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantle;
    const QByteArrayView text = fuzz::viewOf(data, size);
    if (simdjson::validate_utf8(text.data(), size)) fuzz::compareReaders(text);
    return 0;
}
