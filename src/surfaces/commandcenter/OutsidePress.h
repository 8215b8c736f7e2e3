// Tells the click that closed the panel from the click that is to open it.
#pragma once

#include "base/Clock.h"

#include <QPoint>

#include <optional>

namespace vantle {

/// A click on the tray item while the panel is shown comes twice: first as a press somewhere, which
/// closes the panel, then as a click on the item, which must not open it again. Main thread.
class OutsidePress {
public:
    /// A press elsewhere has closed the panel.
    void closedPanel(QPoint place, Date now) { m_press = Press{place, now}; }

    /// Another press: the click of the first one has come by now, or never will.
    void nextPress() { m_press.reset(); }

    /// Whether a click on the tray item, (0, 0) when its place is not known, is the end of the
    /// press that closed the panel. True once at most.
    [[nodiscard]] bool takeClick(QPoint click, Date now);

private:
    struct Press {
        QPoint place;
        Date at;
    };
    std::optional<Press> m_press;
};

} // namespace vantle
