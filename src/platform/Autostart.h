// Whether the program starts when the person logs in.
#pragma once

#include "base/Result.h"

namespace vantle {

/// The login item. Main thread; small file work.
class Autostart {
public:
    virtual ~Autostart() = default;

    [[nodiscard]] virtual bool isRegistered() const = 0;
    virtual Result<> registerItem() = 0;
    virtual Result<> unregisterItem() = 0;
};

} // namespace vantle
