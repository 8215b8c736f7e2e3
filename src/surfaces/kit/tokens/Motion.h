// How things move, for the views: springs, and the person's wish for less movement.
#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

class QJSEngine;
class QQmlEngine;

namespace vantle {

/// One for each QML engine. Every time and spring of the kit goes through it, so that one switch
/// stills them all. Main thread.
class Motion : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    /// The person asked the desktop for less movement. Whoever shows a surface sets it from there.
    Q_PROPERTY(bool reduced READ reduced WRITE setReduced NOTIFY reducedChanged)
    /// What the time of a movement is multiplied with: 1, or 0 with reduced motion.
    Q_PROPERTY(int pace READ pace NOTIFY reducedChanged)

public:
    /// The one of an engine, which it belongs to.
    [[nodiscard]] static Motion* of(QQmlEngine& engine);
    /// For the engine itself.
    static Motion* create(QQmlEngine* engine, QJSEngine* scripts);

    [[nodiscard]] bool reduced() const { return m_reduced; }
    void setReduced(bool reduced);

    /// The time that a movement takes, in milliseconds: as given, or 0 with reduced motion. A
    /// binding that calls it does not follow the switch; one that multiplies with `pace` does.
    Q_INVOKABLE [[nodiscard]] int time(int milliseconds) const { return milliseconds * pace(); }

    [[nodiscard]] int pace() const { return m_reduced ? 0 : 1; }

    /// How far a spring has come `milliseconds` after it was let go: 0 at first, 1 in the end.
    Q_INVOKABLE [[nodiscard]] static double springAt(double stiffness, double damping,
                                                     double milliseconds);
    /// When it has come to rest as far as eyes can tell, in milliseconds.
    Q_INVOKABLE [[nodiscard]] static int springTime(double stiffness, double damping);

Q_SIGNALS:
    void reducedChanged();

private:
    explicit Motion(QObject* parent) : QObject(parent) {}

    bool m_reduced = false;
};

} // namespace vantle
