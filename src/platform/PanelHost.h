// What a floating panel asks of the desktop beyond having a window.
#pragma once

#include "platform/Placement.h"

#include <QObject>
#include <QRegion>
#include <QWindow>

#include <functional>
#include <memory>

namespace vantle {

/// A part of the screen that is watched for the pointer, with nothing to be seen there; until
/// destroyed.
class PointerSensor {
public:
    virtual ~PointerSensor() = default;
};

/// Panels lie above other windows without being in anybody's way: only part of one feels the
/// pointer, and none has the keyboard unless the user types into it. The bodies here are those of
/// a desktop that offers nothing of this. Main thread; windows must have been created.
class PanelHost : public QObject {
    Q_OBJECT

public:
    /// Whether what is transparent in a window shows what lies below. A compositor may come and go.
    [[nodiscard]] virtual bool isComposited() { return true; }

    /// Whether setInputRegion() takes effect. Where it does not, a window takes every press over
    /// it, seen or not, so it must be no larger than what is to feel the pointer. Does not change.
    [[nodiscard]] virtual bool hasInputRegions() const { return true; }

    /// Whether the place of the pointer is known while it is over windows of other applications.
    /// Where it is not, only entering and leaving a window can be believed. Does not change.
    [[nodiscard]] virtual bool tellsPointer() const { return true; }

    /// Makes the window one that floats there, or moves it there. Before its first show this
    /// decides by which kind of window, and creates it; showing it gives it no keyboard. Where a
    /// desktop has no input regions the window covers only what feels the pointer, else what is
    /// drawn: returns the part of the placement's frame that it covers, in px of that frame.
    virtual QRect place(QWindow& window, const Placement& placement);

    /// The place of the pointer, in px of the window from its top left. Where tellsPointer() is
    /// false, right only while the pointer is over the window.
    [[nodiscard]] virtual QPoint pointerIn(const QWindow& window) const;

    /// Only this part of the window feels the pointer; all else lets it through to what is below.
    /// In px of the window, from its top left; an empty region lets everything through. To be set
    /// again after the window was placed, shown or resized.
    virtual void setInputRegion(QWindow&, const QRegion&) {}

    /// Calls `rested` when the pointer has come to rest in that part of a placement, in px from the
    /// top left of its ground(), or rests there already; once for each visit, never within this
    /// call. No window need stand there. Presses go to
    /// what lies there, and what is pressed there, or dragged there, calls nothing for the rest of
    /// the visit. A server that can't tell of all that calls at the arrival and takes the presses.
    /// Null where there is no such thing. Must not outlive the host.
    [[nodiscard]] virtual std::unique_ptr<PointerSensor>
    senseAt(const Placement& /*panel*/, const QRect& /*part*/, std::function<void()> /*rested*/) {
        return nullptr;
    }

    /// Gives the keyboard to the window, and remembers who had it. Nothing when the window has it.
    virtual void takeKeyboard(QWindow&) {}

    /// Gives the keyboard back to who had it before takeKeyboard(), or to the application in front
    /// where that is gone. Nothing when the window doesn't have it any more.
    virtual void returnKeyboard(QWindow&) {}

Q_SIGNALS:
    /// isComposited() changed: a compositor came or went.
    void compositedChanged();

protected:
    /// Of a window that floats there, on any kind of display.
    [[nodiscard]] virtual Qt::WindowFlags flagsFor(const Placement& placement) const;
};

} // namespace vantle
