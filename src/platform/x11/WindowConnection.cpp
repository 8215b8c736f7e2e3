#include "platform/x11/WindowConnection.h"

#include <QGuiApplication>

namespace vantle {

xcb_connection_t* windowConnection() {
    auto* const x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    xcb_connection_t* const connection = x11 != nullptr ? x11->connection() : nullptr;
    return connection != nullptr && xcb_connection_has_error(connection) == 0 ? connection
                                                                              : nullptr;
}

} // namespace vantle
