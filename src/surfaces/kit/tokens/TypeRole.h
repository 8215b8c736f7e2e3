// One step of the type scale, for views. The steps themselves stand in Look.h.
#pragma once

#include "surfaces/kit/tokens/Look.h"

#include <QFont>
#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace vantle {

/// Text up to 15 px. Main thread.
class TypeRole : public QObject {
    Q_OBJECT
    QML_ELEMENT
    /// A family in place of the scale's own, in its normal weight and tracking; empty for none.
    Q_PROPERTY(QString family MEMBER m_family NOTIFY changed)
    /// px; reads multiplied
    Q_PROPERTY(int size READ size WRITE setSize NOTIFY changed)
    /// px from baseline to baseline; reads multiplied
    Q_PROPERTY(int line READ line WRITE setLine NOTIFY changed)
    Q_PROPERTY(int weight MEMBER m_weight NOTIFY changed)
    /// em
    Q_PROPERTY(double tracking MEMBER m_tracking NOTIFY changed)
    /// Small letters are set as capitals.
    Q_PROPERTY(bool capitals MEMBER m_capitals NOTIFY changed)
    Q_PROPERTY(QFont font READ font NOTIFY changed)
    /// Half of what a line has beyond the font's own height, px: what stands above the letters and
    /// below them. Negative for lines that are set close.
    Q_PROPERTY(double leading READ leading NOTIFY changed)

public:
    explicit TypeRole(QObject* parent = nullptr) : QObject(parent) {}
    TypeRole(const look::TypeStep& step, QObject* parent);

    [[nodiscard]] int size() const { return scaled(m_size); }
    void setSize(int size);
    [[nodiscard]] int line() const { return scaled(m_line); }
    void setLine(int line);
    /// What size and line are multiplied with, for users who wish for larger text.
    void setScale(double scale);
    [[nodiscard]] QFont font() const;
    [[nodiscard]] double leading() const;

Q_SIGNALS:
    void changed();

protected:
    TypeRole(bool display, int weight, QObject* parent)
        : QObject(parent)
        , m_display(display)
        , m_weight(weight) {}

private:
    [[nodiscard]] int scaled(int length) const;

    bool m_display = false;
    double m_scale = 1.0;
    QString m_family;
    int m_size = 13;
    int m_line = 20;
    int m_weight = QFont::Normal;
    double m_tracking = 0.0;
    bool m_capitals = false;
};

/// Titles and figures from 15 px upwards, in semibold. (The checker of the views finds a base class
/// by its full name only.)
class DisplayRole : public vantle::TypeRole {
    Q_OBJECT
    QML_ELEMENT

public:
    explicit DisplayRole(QObject* parent = nullptr) : TypeRole(true, QFont::DemiBold, parent) {}
};

} // namespace vantle
