// The window of a scene, for a picture or for use.
#pragma once

#include "gallery/Scene.h"

#include <QImage>
#include <QObject>
#include <QQmlEngine>
#include <QQuickWindow>

namespace vantle {

class Stage {
public:
    /// With `still` animations are off, so that pictures are reproducible.
    Stage(const Scene& scene, bool still);

    /// The view's errors; empty when it was created.
    [[nodiscard]] QString error() const { return m_error; }
    [[nodiscard]] QQuickWindow& window() { return m_window; }
    /// Returns the settled window without transparency.
    [[nodiscard]] QImage picture();

private:
    void show(QQuickItem& view, const Scene& scene);

    // Destroyed after the window, whose items belong to the engine.
    QObject m_owner;
    QQmlEngine m_engine;
    QQuickWindow m_window;
    QString m_error;
};

} // namespace vantle
