// The screens of the toolkit.
#pragma once

#include "platform/Screens.h"

class QScreen;

namespace vantle {

class ReservedStrips;

/// Qt reports no camera housing, so every screen is plain. Requires the application object. Main
/// thread.
///
/// Qt takes the available area from the window manager's work area, which some do not set and which
/// is meaningless with several screens. Therefore the bars' own strips are subtracted too.
class QtScreens final : public Screens {
    Q_OBJECT

public:
    /// `strips` must outlive this object. `tellsPointer` says whether the pointer's position is
    /// known everywhere; otherwise the screen in use is that of the program's active window.
    explicit QtScreens(ReservedStrips& strips, bool tellsPointer = true);

    [[nodiscard]] std::vector<ScreenShape> all() const override;
    [[nodiscard]] std::vector<ScreenShape> inUseFirst() const override;

private:
    void follow(QScreen* screen);

    ReservedStrips& m_strips;
    const bool m_tellsPointer;
};

} // namespace vantle
