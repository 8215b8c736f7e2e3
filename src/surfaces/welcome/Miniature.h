// A static picture of a view, scaled.
#pragma once

#include "surfaces/kit/painters/BakedItem.h"
#include "surfaces/welcome/WelcomeSamples.h"

#include <QImage>
#include <QUrl>

namespace vantle {

/// Renders the view once, off screen, at the final size, and keeps only the picture: as sharp as
/// the real view, without input or accessibility. Empty when the view is invalid. For the software
/// renderer. Main thread.
class Miniature : public vantle::BakedItem {
    Q_OBJECT
    QML_ELEMENT
    /// A view with `required property WelcomeSamples samples`, at its implicit size.
    Q_PROPERTY(QUrl source MEMBER m_source NOTIFY changed)
    Q_PROPERTY(vantle::WelcomeSamples* samples MEMBER m_samples NOTIFY changed)
    /// The scale of the picture relative to the view.
    Q_PROPERTY(double zoom MEMBER m_zoom NOTIFY changed)
    /// Room for the view's shadow, in px of the view.
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
