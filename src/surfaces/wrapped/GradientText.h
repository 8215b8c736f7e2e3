// A text filled with a gradient.
#pragma once

#include "surfaces/kit/painters/BakedItem.h"

#include <QColor>
#include <QFont>

namespace vantle {

/// One line with the text's width and the line's height; shrinks to fit the item. The gradient
/// spans the whole text, also while only its first characters are shown. Main thread.
class GradientText : public vantle::BakedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString text MEMBER m_text NOTIFY changed)
    /// The number of characters shown; -1 for all.
    Q_PROPERTY(int shownCharacters MEMBER m_shown NOTIFY changed)
    Q_PROPERTY(QColor startColor MEMBER m_start NOTIFY changed)
    Q_PROPERTY(QColor endColor MEMBER m_end NOTIFY changed)
    Q_PROPERTY(QFont font MEMBER m_font NOTIFY changed)
    /// px
    Q_PROPERTY(double lineHeight MEMBER m_lineHeight NOTIFY changed)

public:
    explicit GradientText(QQuickItem* parent = nullptr) : BakedItem(parent) {
        connect(this, &BakedItem::changed, this, &GradientText::layOut);
    }

protected:
    void paint(QPainter& painter, double scale) override;
    [[nodiscard]] QMarginsF bleed() const override;

private:
    void layOut();

    QString m_text;
    int m_shown = -1;
    QColor m_start = Qt::white;
    QColor m_end = Qt::white;
    QFont m_font;
    double m_lineHeight = 0;
    double m_textWidth = 0;
};

} // namespace vantle
