// Keeps a page off the network.
#pragma once

#include <QWebEngineUrlRequestInterceptor>

namespace vantle {

/// Blocks every request but those for local files and for data that the page carries itself; web
/// sockets too, which the engine's own settings let through. The engine asks on a thread of its
/// own.
class LocalFilesOnly final : public QWebEngineUrlRequestInterceptor {
    Q_OBJECT

public:
    using QWebEngineUrlRequestInterceptor::QWebEngineUrlRequestInterceptor;

    void interceptRequest(QWebEngineUrlRequestInfo& info) override;
};

} // namespace vantle
