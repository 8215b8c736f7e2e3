// Keeps a page within its own folder and off the network.
#pragma once

#include <QWebEngineUrlRequestInterceptor>

namespace vantle {

/// Blocks every request that ceremonypage::mayLoad refuses; web sockets too, which the engine's own
/// settings let through. The engine may ask on a thread of its own.
class LocalFilesOnly final : public QWebEngineUrlRequestInterceptor {
    Q_OBJECT

public:
    /// `page` is the page's file.
    LocalFilesOnly(QString page, QObject* parent)
        : QWebEngineUrlRequestInterceptor(parent)
        , m_page(std::move(page)) {}

    void interceptRequest(QWebEngineUrlRequestInfo& info) override;

private:
    const QString m_page;
};

} // namespace vantle
