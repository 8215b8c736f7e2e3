// Beside a Wayland compositor.
window.setFlags(Qt::X11BypassWindowManagerHint);
window.setGeometry(frame);
const QPoint pointer = QCursor::pos();
qputenv("QT_QPA_PLATFORM", "xcb");
