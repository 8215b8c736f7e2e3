// The windows of the program, by id.
#pragma once

#include "review/stats/WrappedPeriod.h"
#include "surfaces/window/ManagedWindow.h"

#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace vantle {

class NotificationCenter;

/// Owns the windows and opens them. Has no effect for an unknown window. Main thread.
class WindowRouter : public QObject {
    Q_OBJECT

public:
    WindowRouter(const WindowEnvironment& environment, NotificationCenter& notifications);
    ~WindowRouter() override;

    /// One window for each id.
    void add(WindowSpec spec);

    void show(WindowId id);
    void showWrapped(std::optional<WrappedPeriod> startingOn);
    /// Opens the window with that bus action, if any.
    void showByAction(const QString& action);

    /// Returns the windows with a row in the command center, in the order of add().
    [[nodiscard]] std::vector<const WindowSpec*> doors() const;

    /// The period requested for the review; its view model reads it on construction.
    [[nodiscard]] std::optional<WrappedPeriod> wrappedInitialPeriod() const {
        return m_wrappedInitialPeriod;
    }

    /// Hides an open window with its content; showing it restores it.
    void orderOut(WindowId id);
    void close(WindowId id);
    [[nodiscard]] bool isOpen(WindowId id) const;
    /// Null while closed.
    [[nodiscard]] QWindow* window(WindowId id) const;

Q_SIGNALS:
    /// A window opened or was raised.
    void shown(WindowId id);

private:
    struct Entry {
        Entry(const WindowEnvironment& environment, WindowSpec&& said)
            : spec(std::move(said))
            , window(environment, spec.rules, spec.content) {}

        const WindowSpec spec;
        ManagedWindow window; ///< refers to the rules of the spec
    };

    void open(WindowId id);
    [[nodiscard]] Entry* entry(WindowId id) const;

    WindowEnvironment m_env;
    std::vector<std::unique_ptr<Entry>> m_windows;
    std::optional<WrappedPeriod> m_wrappedInitialPeriod;
};

} // namespace vantle
