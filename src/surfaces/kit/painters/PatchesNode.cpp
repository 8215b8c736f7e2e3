#include "surfaces/kit/painters/PatchesNode.h"

#include <QQuickWindow>
#include <QSGImageNode>

#include <array>
#include <vector>

namespace vantle {

namespace {

/// A section of an axis: its range in the image and on the screen, in device pixels.
struct Stretch {
    int from = 0;
    int fromLength = 0;
    int to = 0;
    int toLength = 0;
};

std::vector<Stretch> stretchesOf(int image, int area, int stillFirst, int stillLast) {
    if (image == area) return {{0, image, 0, area}};
    const int between = image - stillFirst - stillLast;
    std::vector<Stretch> parts;
    for (const Stretch& part :
         std::array{Stretch{0, stillFirst, 0, stillFirst},
                    Stretch{stillFirst, between, stillFirst, area - stillFirst - stillLast},
                    Stretch{image - stillLast, stillLast, area - stillLast, stillLast}})
        if (part.fromLength > 0 && part.toLength > 0) parts.push_back(part);
    return parts;
}

} // namespace

PatchesNode::~PatchesNode() { delete m_texture; }

void PatchesNode::setImage(const QImage& image) {
    delete m_texture;
    m_texture = m_window.createTextureFromImage(image);
    m_imageSize = image.size();
    while (QSGNode* const patch = firstChild()) {
        removeChildNode(patch);
        delete patch;
    }
}

void PatchesNode::layOut(QPointF origin, QSize size, QMargins still, double scale) {
    const auto columns =
        stretchesOf(m_imageSize.width(), size.width(), still.left(), still.right());
    const auto rows = stretchesOf(m_imageSize.height(), size.height(), still.top(), still.bottom());
    const std::size_t count = columns.size() * rows.size();
    while (static_cast<std::size_t>(childCount()) > count) {
        QSGNode* const patch = lastChild();
        removeChildNode(patch);
        delete patch;
    }
    while (static_cast<std::size_t>(childCount()) < count) {
        QSGImageNode* const patch = m_window.createImageNode();
        patch->setTexture(m_texture);
        appendChildNode(patch);
    }
    QSGNode* next = firstChild();
    for (const Stretch& row : rows) {
        for (const Stretch& column : columns) {
            auto* const patch = static_cast<QSGImageNode*>(next);
            patch->setSourceRect(column.from, row.from, column.fromLength, row.fromLength);
            patch->setRect(QRectF(origin + QPointF(column.to, row.to) / scale,
                                  QSizeF(column.toLength, row.toLength) / scale));
            next = next->nextSibling();
        }
    }
}

} // namespace vantle
