// The portal's file chooser, as the code under test meets it.
#pragma once

#include "support/Buses.h"

#include <QDBusArgument>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QObject>
#include <QVariantMap>

#include <gtest/gtest.h>

namespace vantle::tests {

/// One question at a time, on the screen until the user answers or it is taken away.
class FakeFileChooser final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.FileChooser")

public:
    FakeFileChooser() {
        m_client.bus().registerObject(QStringLiteral("/org/freedesktop/portal/desktop"), this,
                                      QDBusConnection::ExportAllInvokables);
        EXPECT_TRUE(m_client.takeName(QStringLiteral("org.freedesktop.portal.Desktop")));
    }

    bool hasDialog = true; ///< false as on a desktop whose portal lacks this part
    bool asked = false;
    bool closed = false; ///< taken away
    QString parent;
    QString title;
    QVariantMap options;

    [[nodiscard]] QString filterSignature() const {
        return options[QStringLiteral("filters")].value<QDBusArgument>().currentSignature();
    }

    [[nodiscard]] bool isShown() const { return m_isShown; }

    /// What the user does: 0 for choosing the file.
    void respond(uint response, const QString& uri) {
        m_isShown = false;
        auto signal = QDBusMessage::createSignal(m_request.path(),
                                                 QStringLiteral("org.freedesktop.portal.Request"),
                                                 QStringLiteral("Response"));
        QVariantMap results;
        if (!uri.isEmpty()) results.insert(QStringLiteral("uris"), QStringList{uri});
        signal << response << results;
        m_client.bus().send(signal);
    }

    Q_INVOKABLE QDBusObjectPath SaveFile(const QString& parentWindow, const QString& dialogTitle,
                                         const QVariantMap& with) {
        if (!hasDialog) {
            sendErrorReply(QDBusError::UnknownMethod, QStringLiteral("No such interface"));
            return {};
        }
        parent = parentWindow;
        title = dialogTitle;
        options = with;
        QString sender = message().service().mid(1);
        sender.replace(QLatin1Char('.'), QLatin1Char('_'));
        m_request =
            QDBusObjectPath(QStringLiteral("/org/freedesktop/portal/desktop/request/%1/%2")
                                .arg(sender, options[QStringLiteral("handle_token")].toString()));
        m_client.bus().registerObject(m_request.path(),
                                      QStringLiteral("org.freedesktop.portal.Request"), this,
                                      QDBusConnection::ExportAllInvokables);
        asked = true;
        m_isShown = true;
        return m_request;
    }

    Q_INVOKABLE void Close() {
        closed = true;
        m_isShown = false;
    }

private:
    BusClient m_client;
    QDBusObjectPath m_request;
    bool m_isShown = false;
};

} // namespace vantle::tests
