// The pointer presses on an X server, over any window.
#pragma once

#include "platform/PointerPresses.h"
#include "platform/x11/X11RawPresses.h"

namespace vantle {

/// None without the input extension; under Xwayland only those over X11 windows. Main thread.
class X11PointerPresses final : public PointerPresses {
    Q_OBJECT

public:
    /// `presses` must outlive this object.
    explicit X11PointerPresses(X11RawPresses& presses) : m_presses(presses) {}

    void watch() override;
    void ignore() override { m_watch.reset(); }

private:
    X11RawPresses& m_presses;
    std::unique_ptr<X11RawPresses::Watch> m_watch;
};

} // namespace vantle
