// The screens as Qt knows them.
#pragma once

#include "platform/Screens.h"

class QScreen;

namespace vantle {

class ReservedStrips;

/// Qt tells of no camera housing, so every screen is a plain one. After the application object.
///
/// What is free of a screen Qt knows from the window manager's sum, which some don't make and which
/// says nothing where there is more than one screen. So the bars' own strips are taken off as well.
class QtScreens final : public Screens {
    Q_OBJECT

public:
    /// `strips` must outlive this. `tellsPointer` says whether the place of the pointer is known
    /// everywhere; else the screen in use is that of the program's active window.
    explicit QtScreens(ReservedStrips& strips, bool tellsPointer = true);

    [[nodiscard]] std::vector<ScreenShape> all() const override;
    [[nodiscard]] std::vector<ScreenShape> inUseFirst() const override;

private:
    void follow(QScreen* screen);

    ReservedStrips& m_strips;
    const bool m_tellsPointer;
};

} // namespace vantle
