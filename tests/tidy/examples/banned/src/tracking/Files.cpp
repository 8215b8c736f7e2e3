QSaveFile a;
bool b = file.open(QIODevice::WriteOnly);
bool c = QFile::remove(name);
bool d = QDir().mkpath(name);
bool e = QDir::current().rmdir(name);
std::ofstream f(name);
FILE* g = fopen(name, mode);
bool ok = file.open(QIODevice::ReadOnly);
bool fine = !QDir(name).exists();
