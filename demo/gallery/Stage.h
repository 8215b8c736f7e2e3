// Puts a scene into a window of its own, for a picture or to be played with.
#pragma once

#include "gallery/Scene.h"

#include <QImage>
#include <QObject>
#include <QQmlEngine>
#include <QQuickWindow>

namespace vantle {

class Stage {
public:
    /// With `still` nothing moves that need not, so that pictures come out alike.
    Stage(const Scene& scene, bool still);

    /// What is wrong with the view; empty when it is up.
    [[nodiscard]] QString error() const { return m_error; }
    [[nodiscard]] QQuickWindow& window() { return m_window; }
    /// The window as it looks once everything has settled, without transparency.
    [[nodiscard]] QImage picture();

private:
    void show(QQuickItem& view, const Scene& scene);

    // The window goes first: its items are the engine's.
    QObject m_owner;
    QQmlEngine m_engine;
    QQuickWindow m_window;
    QString m_error;
};

} // namespace vantle
