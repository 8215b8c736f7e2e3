#include "platform/Port.h"
#include "platform/posix/Files.h"
#include "surfaces/cards/CardWindow.h"

// qDebug, QTimer and QSaveFile in a comment are talk only, /* and
/* so is std::cout here,
   or QElapsedTimer there */
const char* text = "QTimer \" qDebug() // printf(";
const int grouped = 1'000'000;
