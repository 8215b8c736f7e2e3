// The distinction between clicks that closed and clicks that open.
#pragma once

#include "base/Clock.h"

#include <QPoint>

#include <optional>

namespace vantle {

/// A click on the tray item while the panel is open arrives twice: as a press somewhere, which
/// closes the panel, and as a click on the item, which must not reopen it. Main thread.
class OutsidePress {
public:
    /// A press outside closed the panel.
    void closedPanel(QPoint place, Date now) { m_press = Press{place, now}; }

    /// Another press: the click of the first has arrived, or never will.
    void nextPress() { m_press.reset(); }

    /// Whether a click on the tray item (at (0, 0) when unknown) belongs to the press that closed
    /// the panel. Returns true at most once per press.
    [[nodiscard]] bool takeClick(QPoint click, Date now);

private:
    struct Press {
        QPoint place;
        Date at;
    };
    std::optional<Press> m_press;
};

} // namespace vantle
