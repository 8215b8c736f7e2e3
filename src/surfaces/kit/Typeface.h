// The two families of the type scale, or what stands in for them on this machine.
#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace vantle {

/// One for each QML engine. Main thread.
class Typeface : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    /// For text up to 15 px.
    Q_PROPERTY(QString text MEMBER m_text CONSTANT)
    /// For titles and figures from 15 px upwards.
    Q_PROPERTY(QString display MEMBER m_display CONSTANT)
    /// What the display family needs beside the tracking of its role, in em: a text family is drawn
    /// wider than a display family, and is set closer where it has to stand in for one.
    Q_PROPERTY(double displayTracking MEMBER m_displayTracking CONSTANT)

public:
    explicit Typeface(QObject* parent = nullptr);

private:
    QString m_text;
    QString m_display;
    double m_displayTracking = 0.0;
};

} // namespace vantle
