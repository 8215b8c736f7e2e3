auto a = QDateTime::currentDateTime();
auto b = QDate::currentDate();
auto c = QDateTime::currentMSecsSinceEpoch();
auto d = std::chrono::system_clock::now();
auto e = std::chrono::steady_clock::now();
QElapsedTimer f;
QTimer g;
QTimer::singleShot(0, [] {});
int h = startTimer(10);
