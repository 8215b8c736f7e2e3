// Which application is in front.
#pragma once

#include <QString>

#include <optional>

namespace vantle {

/// An application as the desktop knows it.
struct Application {
    QString bundleId; ///< stable identity, as in a desktop entry's id without its suffix
    QString name;     ///< as people call it, in their language
    friend bool operator==(const Application&, const Application&) = default;
};

class FrontmostApp {
public:
    virtual ~FrontmostApp() = default;

    /// The application that has the keyboard now. Empty when none has, or when the desktop can't
    /// tell. Main thread.
    [[nodiscard]] virtual std::optional<Application> frontmost() = 0;
};

} // namespace vantle
