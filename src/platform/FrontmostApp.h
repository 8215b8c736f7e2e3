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

/// This program, when one of its windows is in front.
[[nodiscard]] inline Application ourselves() {
    return {QStringLiteral("local.vantle.Vantle"), QStringLiteral("Vantle")};
}

/// Two that the tables know as one are one: a switch between them is none.
[[nodiscard]] inline bool sameApplication(const std::optional<Application>& a,
                                          const std::optional<Application>& b) {
    if (!a || !b) return a.has_value() == b.has_value();
    return a->bundleId == b->bundleId;
}

/// The applications that a desktop tells about when they come to the front.
enum class AppCoverage {
    All,
    Some, ///< the others have the keyboard without a word, and nothing is in front then
    None, ///< the desktop can't tell at all
};

/// A part of the desktop that would tell more, once the user switches it on.
enum class FrontmostHelp {
    None,
    Offered,
    Asked,   ///< accepted; the desktop has not done it yet
    Refused, ///< accepted, and the desktop did not do it
    AtLogin, ///< installed since the user logged in: the desktop sees it at the next login
};

/// Tells which application has the keyboard, now and whenever that changes. Main thread, the
/// signals included.
class FrontmostApp : public QObject {
    Q_OBJECT

public:
    /// The application that has the keyboard now. Empty when none has, or when the desktop can't
    /// tell.
    [[nodiscard]] virtual std::optional<Application> frontmost() = 0;

    /// What this desktop can tell at all. `frontmost` alone does not say it: with `All` it is empty
    /// while no application is in front.
    [[nodiscard]] virtual AppCoverage coverage() const = 0;

    [[nodiscard]] virtual FrontmostHelp help() const { return FrontmostHelp::None; }
    /// Switches the help on, where it is offered or was refused. The user has pressed for it.
    virtual void acceptHelp() {}

Q_SIGNALS:
    /// Another application came to the front, or the same one again. Empty when none is in front.
    void activated(const std::optional<vantle::Application>& app);
    void coverageChanged();
    void helpChanged();
};

} // namespace vantle
