#include "support/Await.h"

void work(QProcess& process) {
    (void)tests::run(QStringLiteral("xset r rate"));
    process.startCommand(QStringLiteral("gdbus call --session"));
}
