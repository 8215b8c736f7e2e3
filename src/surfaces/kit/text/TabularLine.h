// One line of text with tabular figures; views use TabularText.
#pragma once

#include "surfaces/kit/painters/BakedItem.h"
#include "surfaces/kit/text/TabularLayout.h"

#include <QColor>

namespace vantle {

/// As wide as its text, as high as its line. Main thread.
class TabularLine : public vantle::BakedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString text MEMBER m_text NOTIFY changed)
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY changed)
    Q_PROPERTY(QFont font MEMBER m_font NOTIFY changed)
    /// px
    Q_PROPERTY(double lineHeight MEMBER m_lineHeight NOTIFY changed)

public:
    explicit TabularLine(QQuickItem* parent = nullptr) : BakedItem(parent) {
        connect(this, &BakedItem::changed, this, &TabularLine::layOut);
    }

protected:
    void paint(QPainter& painter, double scale) override;
    [[nodiscard]] QMarginsF bleed() const override;

private:
    void layOut();

    QString m_text;
    QColor m_color = Qt::white;
    QFont m_font;
    double m_lineHeight = 0.0;
    tabular::Line m_line;
};

} // namespace vantle
