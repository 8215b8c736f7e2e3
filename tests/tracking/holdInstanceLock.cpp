// holdInstanceLock <data home>: another copy of the program, as far as the lock can tell.
//
// Prints "held" or "refused", and keeps what it got until its input ends or it is killed.
#include "platform/posix/PosixFileSystem.h"
#include "tracking/AppPaths.h"
#include "tracking/SingleInstanceLock.h"

#include <cstdio>

int main(int argc, char** argv) {
    if (argc != 2) return 2;
    vantle::PosixFileSystem files;
    const vantle::AppPaths paths(files, QString::fromLocal8Bit(argv[1]));
    vantle::SingleInstanceLock lock;
    std::puts(lock.acquire(paths) ? "held" : "refused");
    std::fflush(stdout);
    while (std::getchar() != EOF) {
    }
    return 0;
}
