// Draws an image over an area of whole device pixels: its corners as they are, the rest stretched.
#pragma once

#include <QImage>
#include <QMargins>
#include <QSGNode>
#include <QSize>

class QQuickWindow;
class QSGImageNode;
class QSGTexture;

namespace vantle {

/// Where each part of such an image goes. Qt's own nine patches round the whole to px, so that at
/// 1.25 lines of the ground show between them; parts that all begin a whole number of device pixels
/// from one point are all rounded the same way. Render thread; with the software renderer that is
/// the main thread.
///
/// A transform that changes nothing: below a plain node the software renderer forgets where parts
/// belong that are added later, and draws them in the corner of the window.
class PatchesNode final : public QSGTransformNode {
public:
    explicit PatchesNode(QQuickWindow& window) : m_window(window) {}
    ~PatchesNode() override;
    PatchesNode(const PatchesNode&) = delete;
    PatchesNode& operator=(const PatchesNode&) = delete;

    /// What is drawn from now on.
    void setImage(const QImage& image);

    /// Draws it over `size` device pixels from `origin`, which is in px, at so many device pixels
    /// a px. `still` is what does not stretch, in pixels of the image, from each of its edges; an
    /// axis on which image and area are the same does not stretch at all.
    void layOut(QPointF origin, QSize size, QMargins still, double scale);

private:
    QQuickWindow& m_window;
    QSGTexture* m_texture = nullptr;
    QSize m_imageSize;
};

} // namespace vantle
