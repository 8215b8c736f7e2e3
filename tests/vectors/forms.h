// The drivers, one a file. A new one is declared here and named in the table in forms.cpp.
#pragma once

#include "vectors/Form.h"

namespace vantle::vectors {} // namespace vantle::vectors
