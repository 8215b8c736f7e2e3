// The filter that confines a page to its folder.
#pragma once

#include <QWebEngineUrlRequestInterceptor>

namespace vantle {

/// Blocks every request that ceremonypage::mayLoad refuses, including web sockets, which the
/// engine's settings allow. The engine may call it on its own thread.
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
