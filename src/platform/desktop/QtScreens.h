// The screens as Qt knows them.
#pragma once

#include "platform/Screens.h"

class QScreen;

namespace vantle {

/// Qt tells of no camera housing, so every screen is a plain one. After the application object.
class QtScreens final : public Screens {
    Q_OBJECT

public:
    QtScreens();

    [[nodiscard]] std::vector<ScreenShape> all() const override;

private:
    void follow(QScreen* screen);
};

} // namespace vantle
