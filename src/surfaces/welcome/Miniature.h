// A view as a picture, larger or smaller than the real thing.
#pragma once

#include "surfaces/kit/painters/BakedItem.h"
#include "surfaces/welcome/WelcomeSamples.h"

#include <QImage>
#include <QUrl>

namespace vantle {

/// Draws the view once, out of sight, at the size that it is to have, and keeps the picture alone:
/// letters and edges are as sharp as in the real thing, and nothing in it can be pressed or read
/// out. Empty when the view is no good. Main thread, with the software renderer.
class Miniature : public vantle::BakedItem {
    Q_OBJECT
    QML_ELEMENT
    /// A view with `required property WelcomeSamples samples`, as large as it asks to be.
    Q_PROPERTY(QUrl source MEMBER m_source NOTIFY changed)
    Q_PROPERTY(vantle::WelcomeSamples* samples MEMBER m_samples NOTIFY changed)
    /// Size of the picture against that of the view.
    Q_PROPERTY(double zoom MEMBER m_zoom NOTIFY changed)
    /// Room for the view's shadow, px of the view.
    Q_PROPERTY(double margin MEMBER m_margin NOTIFY changed)

public:
    explicit Miniature(QQuickItem* parent = nullptr);

protected:
    void paint(QPainter& painter, double scale) override;
    [[nodiscard]] QMarginsF bleed() const override;
    void updatePolish() override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;

private:
    [[nodiscard]] QImage draw(double scale);

    QUrl m_source;
    WelcomeSamples* m_samples = nullptr;
    double m_zoom = 1;
    double m_margin = 0;
    QImage m_picture;
};

} // namespace vantle
