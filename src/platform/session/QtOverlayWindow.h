// One window over one screen.
#pragma once

#include "platform/OverlayView.h"

#include <QRasterWindow>

#include <memory>

namespace vantle {

class Clock;
class PanelHost;
class Screens;

/// Shows the present moment of a view whenever refresh() is called. Main thread.
class QtOverlayWindow final : public QRasterWindow {
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
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] Seconds elapsed() const;
    [[nodiscard]] bool takeShape();
    void end();

    std::unique_ptr<OverlayView> m_view; ///< null from its end on, so that its memory is free
    const Clock& m_clock;
    PanelHost& m_host;
    bool m_isSolid = false; ///< the window has the shape of what the view calls solid
};

} // namespace vantle
