#include "platform/posix/Files.h"

void write() { QFile::remove(QStringLiteral("a")); }
