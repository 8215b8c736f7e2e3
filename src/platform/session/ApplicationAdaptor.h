// The D-Bus side of ApplicationService.
#pragma once

#include "platform/session/ApplicationService.h"

#include <QDBusAbstractAdaptor>
#include <QVariantMap>

namespace vantle {

/// The interface org.freedesktop.Application. Ignores platform data and files: the program opens
/// none. Main thread.
class ApplicationAdaptor final : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    explicit ApplicationAdaptor(ApplicationService& service)
        : QDBusAbstractAdaptor(&service)
        , m_service(service) {}

public Q_SLOTS:
    void Activate(const QVariantMap& platformData);
    void Open(const QStringList& uris, const QVariantMap& platformData);
    void ActivateAction(const QString& name, const QVariantList& parameter,
                        const QVariantMap& platformData);

private:
    ApplicationService& m_service;
};

} // namespace vantle
