view->setProperty("rounded", true);
const bool isReady = view->property("ready").toBool();
QMetaObject::invokeMethod(view, "select", Q_ARG(int, 1));
connect(view, SIGNAL(crashed()), this, &Window::hide);
QMetaObject::invokeMethod(view, &View::select);
