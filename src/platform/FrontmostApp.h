// Which application is in front.
#pragma once

#include <QObject>
#include <QString>

#include <optional>

namespace vantle {

/// An application as the desktop knows it. What the desktop can't tell of it is an empty text.
struct Application {
    QString bundleId; ///< stable identity, as in a desktop entry's id without its suffix
    QString name;     ///< as people call it, in their language
    friend bool operator==(const Application&, const Application&) = default;
};

/// Tells which application has the keyboard, now and whenever that changes. Main thread, the signal
/// included.
class FrontmostApp : public QObject {
    Q_OBJECT

public:
    /// The application that has the keyboard now. Empty when none has, or when the desktop can't
    /// tell.
    [[nodiscard]] virtual std::optional<Application> frontmost() = 0;

Q_SIGNALS:
    /// Another application came to the front, or the same one again. Empty when none is in front.
    void activated(const std::optional<vantle::Application>& app);
};

} // namespace vantle
