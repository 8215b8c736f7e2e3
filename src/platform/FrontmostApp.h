// The port of the application in front.
#pragma once

#include <QObject>
#include <QString>

#include <optional>

namespace vantle {

/// An application as the desktop knows it. Unknown parts are empty.
struct Application {
    QString bundleId; ///< stable identity: a desktop entry's id without suffix
    QString name;     ///< display name in the user's language
    friend bool operator==(const Application&, const Application&) = default;
};

/// The identity reported when one of the program's own windows is in front.
[[nodiscard]] inline Application ourselves() {
    return {QStringLiteral("local.vantle.Vantle"), QStringLiteral("Vantle")};
}

/// Whether both are one application to auto mode's tables; a switch between them does not count.
[[nodiscard]] inline bool sameApplication(const std::optional<Application>& a,
                                          const std::optional<Application>& b) {
    if (!a || !b) return a.has_value() == b.has_value();
    return a->bundleId == b->bundleId;
}

/// The applications whose activation the desktop reports.
enum class AppCoverage {
    All,
    Some, ///< others get the keyboard unreported; nothing is in front then
    None, ///< the desktop reports none
};

/// A part of the desktop that would report more once the user enables it.
enum class FrontmostHelp {
    None,
    Offered,
    Asked,   ///< accepted, not done yet
    Refused, ///< accepted, but the desktop did not do it
    AtLogin, ///< installed since login: the desktop loads it at the next login
};

/// Reports which application has the keyboard, now and on each change. Main thread, the signals
/// included.
class FrontmostApp : public QObject {
    Q_OBJECT

public:
    /// Returns the application with the keyboard; empty when there is none or it is unknown.
    [[nodiscard]] virtual std::optional<Application> frontmost() = 0;

    /// What this desktop can report. Tells an empty `frontmost` apart: with `All` no application is
    /// in front.
    [[nodiscard]] virtual AppCoverage coverage() const = 0;

    [[nodiscard]] virtual FrontmostHelp help() const { return FrontmostHelp::None; }
    /// Enables the help that is offered or was refused. Call only when the user asked for it.
    virtual void acceptHelp() {}

Q_SIGNALS:
    /// An application came to the front, possibly the same again; empty for none.
    void activated(const std::optional<vantle::Application>& app);
    void coverageChanged();
    void helpChanged();
};

} // namespace vantle
