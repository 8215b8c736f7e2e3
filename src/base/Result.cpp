#include "base/Result.h"

#include <system_error>

namespace vantle {

QString Error::description() const {
    if (operation.isEmpty()) return text;
    if (path.isEmpty()) return QStringLiteral("%1 (%2)").arg(text, operation);
    return QStringLiteral("%1 (%2 %3)").arg(text, operation, path);
}

Error Error::fromErrno(int code, const QString& operation, const QString& path) {
    return {code, operation, path, QString::fromStdString(std::generic_category().message(code))};
}

} // namespace vantle
