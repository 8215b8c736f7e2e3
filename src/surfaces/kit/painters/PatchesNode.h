// The scene graph node of nine-patch images.
#pragma once

#include <QImage>
#include <QMargins>
#include <QSGNode>
#include <QSize>

class QQuickWindow;
class QSGImageNode;
class QSGTexture;

namespace vantle {

/// Draws an image's corners unscaled and stretches the rest, on whole device pixels. Qt's
/// nine-patch rounds the whole to px, so that gaps appear between patches at 1.25; here all patches
/// start a whole number of device pixels from one point and are rounded alike. Render thread, which
/// is the main thread with the software renderer.
///
/// An identity transform, since the software renderer misplaces parts that are added later to a
/// plain node: it draws them in the window's corner.
class PatchesNode final : public QSGTransformNode {
public:
    explicit PatchesNode(QQuickWindow& window) : m_window(window) {}
    ~PatchesNode() override;
    PatchesNode(const PatchesNode&) = delete;
    PatchesNode& operator=(const PatchesNode&) = delete;

    /// Sets the image to draw.
    void setImage(const QImage& image);

    /// Draws over `size` device pixels from `origin` (in px), at `scale` device pixels per px.
    /// `still` is the unstretched margin in image pixels; an axis of equal length is not stretched.
    void layOut(QPointF origin, QSize size, QMargins still, double scale);

private:
    QQuickWindow& m_window;
    QSGTexture* m_texture = nullptr;
    QSize m_imageSize;
};

} // namespace vantle
