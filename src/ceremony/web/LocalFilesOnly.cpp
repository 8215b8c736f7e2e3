#include "ceremony/web/LocalFilesOnly.h"

namespace vantle {

void LocalFilesOnly::interceptRequest(QWebEngineUrlRequestInfo& info) {
    const QString scheme = info.requestUrl().scheme();
    const bool isLocal = scheme == QLatin1String("file") || scheme == QLatin1String("data") ||
                         scheme == QLatin1String("blob");
    info.block(!isLocal);
}

} // namespace vantle
