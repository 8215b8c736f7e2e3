// A model server that answers with any bytes, in any pieces: what is understood does not depend on
// how the bytes came in, and stays within its bounds.
#include "Input.h"
#include "platform/localmodel/ChatFormat.h"
#include "platform/localmodel/HttpResponse.h"

#include <algorithm>

namespace vantle::fuzz {
namespace {

HttpResponse received(QByteArrayView bytes, qsizetype piece) {
    HttpResponse response;
    for (qsizetype at = 0; at < bytes.size(); at += piece)
        response.take(bytes.sliced(at, std::min(piece, bytes.size() - at)));
    return response;
}

} // namespace
} // namespace vantle::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantle;
    using State = HttpResponse::State;
    if (size == 0) return 0;
    const qsizetype piece = 1 + data[0];
    const QByteArrayView bytes = fuzz::viewOf(data + 1, size - 1);
    HttpResponse whole = fuzz::received(bytes, std::max<qsizetype>(bytes.size(), 1));
    HttpResponse pieces = fuzz::received(bytes, piece);
    const State state = whole.finish();
    fuzz::promise(state != State::Incomplete, "the end of the connection is an end");
    fuzz::promise(pieces.finish() == state, "pieces do not matter");
    if (state != State::Complete) return 0;
    fuzz::promise(whole.status() == pieces.status() && whole.body() == pieces.body(),
                  "pieces give the same answer");
    fuzz::promise(whole.status() >= 100 && whole.status() <= 599, "a status of HTTP");
    fuzz::promise(whole.body().size() <= HttpResponse::maxSize, "no more than a megabyte");
    static_cast<void>(chatformat::answer(whole.body()));
    return 0;
}
