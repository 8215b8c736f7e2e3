// Presses of the pointer over the windows of any application of an X server.
#pragma once

#include "platform/PointerPresses.h"
#include "platform/x11/X11RawPresses.h"

namespace vantle {

/// Without the input extension nothing is told. Under Xwayland only presses over X11 windows are.
class X11PointerPresses final : public PointerPresses {
    Q_OBJECT

public:
    /// `presses` must outlive this.
    explicit X11PointerPresses(X11RawPresses& presses) : m_presses(presses) {}

    void watch() override;
    void ignore() override { m_watch.reset(); }

private:
    X11RawPresses& m_presses;
    std::unique_ptr<X11RawPresses::Watch> m_watch;
};

} // namespace vantle
