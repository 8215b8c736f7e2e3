// One line of text whose digits stand in cells. Views use TabularText, which knows the type scale.
#pragma once

#include "surfaces/kit/painters/BakedItem.h"
#include "surfaces/kit/text/TabularLayout.h"

#include <QColor>

namespace vantle {

/// As wide as its text, as high as its line. Main thread.
class TabularLine : public vantle::BakedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY changed)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY changed)
    Q_PROPERTY(QFont font READ font WRITE setFont NOTIFY changed)
    /// px
    Q_PROPERTY(double lineHeight READ lineHeight WRITE setLineHeight NOTIFY changed)

public:
    explicit TabularLine(QQuickItem* parent = nullptr) : BakedItem(parent) {}

    [[nodiscard]] QString text() const { return m_text; }
    void setText(const QString& text);
    [[nodiscard]] QColor color() const { return m_color; }
    void setColor(const QColor& color);
    [[nodiscard]] QFont font() const { return m_font; }
    void setFont(const QFont& font);
    [[nodiscard]] double lineHeight() const { return m_lineHeight; }
    void setLineHeight(double height);

Q_SIGNALS:
    void changed();

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
