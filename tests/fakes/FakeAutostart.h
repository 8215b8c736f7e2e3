// The login item of a desktop.
#pragma once

#include "platform/Autostart.h"

#include <cerrno>

namespace vantle::fakes {

class FakeAutostart final : public Autostart {
public:
    [[nodiscard]] bool isRegistered() const override { return registered; }
    Result<> registerItem() override {
        ++attempts;
        return set(true);
    }
    Result<> unregisterItem() override { return registered ? set(false) : Result<>(); }

    bool registered = false;
    bool refuses = false;
    int attempts = 0; ///< to register

private:
    Result<> set(bool on) {
        if (refuses)
            return Error::fromErrno(EACCES, QStringLiteral("write"), QStringLiteral("autostart"));
        registered = on;
        return {};
    }
};

} // namespace vantle::fakes
