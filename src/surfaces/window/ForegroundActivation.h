// Counts the open windows: with one the program has a place in the task bar, without none.
#pragma once

#include <QObject>

namespace vantle {

/// What floats (capsule, cards, panel) is in no task bar, and a managed window is in it exactly
/// while it is open. So the desktop follows by itself, and what is left is to tell those who care.
/// Main thread.
class ForegroundActivation : public QObject {
    Q_OBJECT

public:
    void windowAppeared();
    /// One more than appeared changes nothing.
    void windowDisappeared();

    [[nodiscard]] int openWindows() const { return m_openWindows; }
    /// Whether the program stands among the applications, not only in the tray.
    [[nodiscard]] bool isRegular() const { return m_openWindows > 0; }

Q_SIGNALS:
    void regularChanged();

private:
    int m_openWindows = 0;
};

} // namespace vantle
