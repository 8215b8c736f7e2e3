// What a floating panel asks of the desktop beyond having a window.
#pragma once

#include <QRegion>
#include <QWindow>

#include <functional>
#include <memory>

namespace vantle {

/// A part of the screen that feels the pointer with nothing to be seen there; until destroyed.
class PointerSensor {
public:
    virtual ~PointerSensor() = default;
};

/// Panels lie above other windows without being in anybody's way: only part of one feels the
/// pointer, and none has the keyboard unless the person types into it. The bodies here are those of
/// a desktop that offers nothing of this. Main thread; windows must have been created.
class PanelHost {
public:
    virtual ~PanelHost() = default;

    /// Whether what is transparent in a window shows what lies below. Asked when a panel is shown:
    /// a compositor may come and go.
    [[nodiscard]] virtual bool isComposited() { return true; }

    /// Only this part of the window feels the pointer; all else lets it through to what is below.
    /// In px of the window, from its top left; an empty region lets everything through. To be set
    /// again after the window was shown or resized.
    virtual void setInputRegion(QWindow&, const QRegion&) {}

    /// Calls `entered` when the pointer comes into that part of the screen, in px of the desktop,
    /// or is in it already. For desktops without a compositor, where no window can be invisible;
    /// null where there is no such thing. Must not outlive the host.
    [[nodiscard]] virtual std::unique_ptr<PointerSensor>
    senseAt(const QRect& /*part*/, std::function<void()> /*entered*/) {
        return nullptr;
    }

    /// Gives the keyboard to the window, and remembers who had it. Nothing when the window has it.
    virtual void takeKeyboard(QWindow&) {}

    /// Gives the keyboard back to who had it before takeKeyboard(), or to the application in front
    /// where that is gone. Nothing when the window doesn't have it any more.
    virtual void returnKeyboard(QWindow&) {}
};

} // namespace vantle
