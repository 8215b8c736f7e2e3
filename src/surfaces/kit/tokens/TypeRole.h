// A step of the type scale, for views.
#pragma once

#include "surfaces/kit/tokens/Look.h"

#include <QFont>
#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace vantle {

/// The text family, up to 15 px; Look.h has the steps. Main thread.
class TypeRole : public QObject {
    Q_OBJECT
    QML_ELEMENT
    /// Replaces the family, with normal weight and tracking; empty for none.
    Q_PROPERTY(QString family MEMBER m_family NOTIFY changed)
    /// px; reads scaled
    Q_PROPERTY(int size READ size WRITE setSize NOTIFY changed)
    /// px between baselines; reads scaled
    Q_PROPERTY(int line READ line WRITE setLine NOTIFY changed)
    Q_PROPERTY(int weight MEMBER m_weight NOTIFY changed)
    /// em
    Q_PROPERTY(double tracking MEMBER m_tracking NOTIFY changed)
    /// Sets the text in capitals.
    Q_PROPERTY(bool capitals MEMBER m_capitals NOTIFY changed)
    Q_PROPERTY(QFont font READ font NOTIFY changed)
    /// Half of the line height beyond the font's own, in px: the space above and below the letters.
    /// Negative for tight lines.
    Q_PROPERTY(double leading READ leading NOTIFY changed)

public:
    explicit TypeRole(QObject* parent = nullptr) : QObject(parent) {}
    TypeRole(const look::TypeStep& step, QObject* parent);

    [[nodiscard]] int size() const { return scaled(m_size); }
    void setSize(int size);
    [[nodiscard]] int line() const { return scaled(m_line); }
    void setLine(int line);
    /// Scales size and line, for users who ask for larger text.
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

/// The display family in semibold, for titles and figures from 15 px on. (qmllint finds a base
/// class by its full name only.)
class DisplayRole : public vantle::TypeRole {
    Q_OBJECT
    QML_ELEMENT

public:
    explicit DisplayRole(QObject* parent = nullptr) : TypeRole(true, QFont::DemiBold, parent) {}
};

} // namespace vantle
