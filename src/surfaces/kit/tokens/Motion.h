// The motion rules for views: springs and reduced motion.
#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

class QJSEngine;
class QQmlEngine;

namespace vantle {

/// One per QML engine. All durations and springs of the kit go through it, so that one switch stops
/// them. Main thread.
class Motion : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    /// The desktop's reduced motion setting, set by the owner of the surface.
    Q_PROPERTY(bool reduced READ reduced WRITE setReduced NOTIFY reducedChanged)
    /// The factor for durations: 1, or 0 with reduced motion.
    Q_PROPERTY(int pace READ pace NOTIFY reducedChanged)

public:
    /// Returns the engine's instance, which the engine owns.
    [[nodiscard]] static Motion* of(QQmlEngine& engine);
    /// For the QML engine.
    static Motion* create(QQmlEngine* engine, QJSEngine* scripts);

    [[nodiscard]] bool reduced() const { return m_reduced; }
    void setReduced(bool reduced);

    /// Returns the duration in milliseconds, or 0 with reduced motion. A binding that calls this
    /// does not follow the setting; one that multiplies by `pace` does.
    Q_INVOKABLE [[nodiscard]] int time(int milliseconds) const { return milliseconds * pace(); }

    [[nodiscard]] int pace() const { return m_reduced ? 0 : 1; }

    /// Returns a spring's progress after `milliseconds`: 0 at first, 1 at the end.
    Q_INVOKABLE [[nodiscard]] static double springAt(double stiffness, double damping,
                                                     double milliseconds);
    /// Returns when it is visibly at rest, in milliseconds.
    Q_INVOKABLE [[nodiscard]] static int springTime(double stiffness, double damping);

Q_SIGNALS:
    void reducedChanged();

private:
    explicit Motion(QObject* parent) : QObject(parent) {}

    bool m_reduced = false;
};

} // namespace vantle
