#include "ceremony/web/LocalFilesOnly.h"

#include "ceremony/CeremonyPage.h"

namespace vantle {

void LocalFilesOnly::interceptRequest(QWebEngineUrlRequestInfo& info) {
    info.block(!ceremonypage::mayLoad(m_page, info.requestUrl()));
}

} // namespace vantle
