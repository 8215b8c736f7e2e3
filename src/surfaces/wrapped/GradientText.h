// A name in the colours of its gradient.
#pragma once

#include "surfaces/kit/painters/BakedItem.h"

#include <QColor>
#include <QFont>

namespace vantle {

/// One line, as wide as its text, as high as its line; set smaller where the item is too narrow.
/// The gradient goes over the whole text, also while only its first characters are shown. Main
/// thread.
class GradientText : public vantle::BakedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY changed)
    /// How many characters of it are shown; -1 for all.
    Q_PROPERTY(int shownCharacters READ shownCharacters WRITE setShownCharacters NOTIFY changed)
    Q_PROPERTY(QColor startColor READ startColor WRITE setStartColor NOTIFY changed)
    Q_PROPERTY(QColor endColor READ endColor WRITE setEndColor NOTIFY changed)
    Q_PROPERTY(QFont font READ font WRITE setFont NOTIFY changed)
    /// px
    Q_PROPERTY(double lineHeight READ lineHeight WRITE setLineHeight NOTIFY changed)

public:
    explicit GradientText(QQuickItem* parent = nullptr) : BakedItem(parent) {}

    [[nodiscard]] QString text() const { return m_text; }
    void setText(const QString& text);
    [[nodiscard]] int shownCharacters() const { return m_shown; }
    void setShownCharacters(int count);
    [[nodiscard]] QColor startColor() const { return m_start; }
    void setStartColor(const QColor& color);
    [[nodiscard]] QColor endColor() const { return m_end; }
    void setEndColor(const QColor& color);
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
    int m_shown = -1;
    QColor m_start = Qt::white;
    QColor m_end = Qt::white;
    QFont m_font;
    double m_lineHeight = 0;
    double m_textWidth = 0;
};

} // namespace vantle
