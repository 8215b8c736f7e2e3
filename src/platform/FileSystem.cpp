#include "platform/FileSystem.h"

namespace vantle {

Result<QByteArray> FileSystem::readAll(const QString& path) {
    auto file = open(path, OpenMode::Read);
    if (!file) return file.error();
    const auto size = file.value()->size();
    if (!size) return size.error();

    // One byte more than expected, so that a usual file needs one round; a file that grows, or
    // reports no size, is still read to its end.
    QByteArray content;
    qint64 filled = 0;
    for (qint64 room = size.value() + 1;; room = content.size()) {
        content.resize(filled + room);
        const auto count = file.value()->read(content.data() + filled, room);
        if (!count) return count.error();
        filled += count.value();
        if (count.value() == 0) break;
        if (filled < content.size()) {
            const auto more = file.value()->read(content.data() + filled, content.size() - filled);
            if (!more) return more.error();
            filled += more.value();
            if (more.value() == 0) break;
        }
    }
    content.resize(filled);
    return content;
}

} // namespace vantle
