// The port of what keeps the desktop awake.
#pragma once

#include <QObject>

namespace vantle {

/// An application holds the session awake during a call, a video or a presentation. Main thread,
/// the signal included.
class IdleInhibition : public QObject {
    Q_OBJECT

public:
    /// Returns whether the session is kept from being idle, as far as the desktop tells; false
    /// while it is not followed. What holds off suspension alone, such as a download, does not
    /// count. Never waits.
    [[nodiscard]] virtual bool isHeld() const = 0;

    /// Returns false where the desktop has turned out not to tell.
    [[nodiscard]] virtual bool canTell() const = 0;

    /// Starts or stops following the desktop, which answers some milliseconds later. Until then
    /// no service is asked.
    virtual void setFollowed(bool followed) = 0;

Q_SIGNALS:
    void changed();
};

} // namespace vantle
