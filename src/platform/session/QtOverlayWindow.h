// One window over one screen.
#pragma once

#include "platform/OverlayView.h"

#include <QBackingStore>
#include <QWindow>

#include <memory>

namespace vantle {

class Clock;
class PanelHost;
class Screens;

/// Shows the present moment of a view whenever refresh() is called. Its backing store is written
/// but once a frame: a QRasterWindow would blank all of it before. Main thread.
class QtOverlayWindow final : public QWindow {
    Q_OBJECT

public:
    /// Not visible yet, over the screen with that frame. `clock`, `screens` and `host` must outlive
    /// this.
    QtOverlayWindow(const QRect& frame, std::unique_ptr<OverlayView> view, const Clock& clock,
                    const Screens& screens, PanelHost& host);
    ~QtOverlayWindow() override;

    /// Shows the next frame, or hides the window when its view is over.
    void refresh();

    /// The view is over, or the screen is gone: nothing shows any more.
    [[nodiscard]] bool isOver() const { return m_view == nullptr; }

protected:
    void exposeEvent(QExposeEvent* event) override;

private:
    void draw();
    void write(QImage& frame);
    [[nodiscard]] Seconds elapsed() const;
    [[nodiscard]] bool takeShape();
    void end();

    std::unique_ptr<OverlayView> m_view; ///< null from its end on, so that its memory is free
    const Clock& m_clock;
    PanelHost& m_host;
    std::unique_ptr<QBackingStore> m_store;
    bool m_isSolid = false; ///< the window has the shape of what the view calls solid
};

} // namespace vantle
