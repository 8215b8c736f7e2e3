#include "base/Heap.h"

#include <cstdlib> // __GLIBC__

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace vantle {

void trimHeap() {
#ifdef __GLIBC__
    malloc_trim(0);
#endif
}

} // namespace vantle
