#include "surfaces/window/MemoryReturn.h"

#include <cstdlib>
#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace vantle {

void giveMemoryBack() {
#ifdef __GLIBC__
    malloc_trim(0);
#endif
}

} // namespace vantle
