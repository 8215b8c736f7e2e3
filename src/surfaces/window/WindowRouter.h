// Owns the program's windows and opens them.
#pragma once

#include "review/stats/WrappedPeriod.h"
#include "surfaces/window/ManagedWindow.h"

#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace vantle {

class NotificationCenter;

/// A window that was not added does not open, and nothing else happens. Main thread.
class WindowRouter : public QObject {
    Q_OBJECT

public:
    WindowRouter(const WindowEnvironment& environment, NotificationCenter& notifications);
    ~WindowRouter() override;

    /// One window for each id.
    void add(WindowSpec spec);

    void show(WindowId id);
    void showWrapped(std::optional<WrappedPeriod> startingOn);
    /// Opens the window of that action on the bus; nothing happens when there is none.
    void showByAction(const QString& action);

    /// The windows that have a row in the command center, in the order in which they were added.
    [[nodiscard]] std::vector<const WindowSpec*> doors() const;

    /// The period on which the review was asked to open; its view model reads it when it is made.
    [[nodiscard]] std::optional<WrappedPeriod> wrappedInitialPeriod() const {
        return m_wrappedInitialPeriod;
    }

    /// Takes an open window from the screen with all that it holds; to show it brings it back.
    void orderOut(WindowId id);
    void close(WindowId id);
    [[nodiscard]] bool isOpen(WindowId id) const;
    /// Null while it is closed.
    [[nodiscard]] QWindow* window(WindowId id) const;

Q_SIGNALS:
    /// A window has opened, or came to the front.
    void shown(WindowId id);

private:
    struct Entry {
        Entry(const WindowEnvironment& environment, WindowSpec&& said)
            : spec(std::move(said))
            , window(environment, spec.rules, spec.content) {}

        const WindowSpec spec;
        ManagedWindow window; ///< works by the rules of the spec
    };

    void open(WindowId id);
    [[nodiscard]] Entry* entry(WindowId id) const;

    WindowEnvironment m_env;
    std::vector<std::unique_ptr<Entry>> m_windows;
    std::optional<WrappedPeriod> m_wrappedInitialPeriod;
};

} // namespace vantle
