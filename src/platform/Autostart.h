// The port of starting the program at login.
#pragma once

#include "base/Result.h"

namespace vantle {

/// Main thread; reads or writes small files.
class Autostart {
public:
    virtual ~Autostart() = default;

    [[nodiscard]] virtual bool isRegistered() const = 0;
    virtual Result<> registerItem() = 0;
    virtual Result<> unregisterItem() = 0;
};

} // namespace vantle
