// The toolkit window of one overlay.
#pragma once

#include "platform/OverlayView.h"

#include <QBackingStore>
#include <QWindow>

#include <memory>

namespace vantle {

class Clock;
class PanelHost;
class Screens;

/// refresh() shows the view's current frame. Writes its backing store once per frame, where a
/// QRasterWindow would clear all of it first. Main thread.
class QtOverlayWindow final : public QWindow {
    Q_OBJECT

public:
    /// Covers the screen with that frame, hidden at first. `clock`, `screens` and `host` must
    /// outlive it.
    QtOverlayWindow(const QRect& frame, std::unique_ptr<OverlayView> view, const Clock& clock,
                    const Screens& screens, PanelHost& host);
    ~QtOverlayWindow() override;

    /// Shows the next frame, or hides the window when its view has ended.
    void refresh();

    /// Whether the view has ended or the screen is gone.
    [[nodiscard]] bool isOver() const { return m_view == nullptr; }

protected:
    void exposeEvent(QExposeEvent* event) override;

private:
    void draw();
    void write(QImage& frame);
    [[nodiscard]] Seconds elapsed() const;
    [[nodiscard]] bool takeShape();
    void end();

    std::unique_ptr<OverlayView> m_view; ///< null after its end, to free memory
    const Clock& m_clock;
    PanelHost& m_host;
    std::unique_ptr<QBackingStore> m_store;
    bool m_isSolid = false; ///< masked to the view's solid part
};

} // namespace vantle
