// The file that names a model server, of any bytes.
#include "Input.h"
#include "platform/localmodel/ChatFormat.h"
#include "platform/localmodel/LocalModelSettings.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantle;
    const QByteArrayView text = fuzz::viewOf(data, size);
    static_cast<void>(chatformat::answer(text.toByteArray()));
    const auto settings = LocalModelSettings::parse(text);
    if (!settings) return 0;
    fuzz::promise(settings->socket.startsWith(QLatin1Char('/')), "an absolute path");
    fuzz::promise(!settings->socket.contains(QChar::Null), "a path that the system can open");
    fuzz::promise(LocalModelSettings::parse(text) == settings, "the same each time");
    return 0;
}
