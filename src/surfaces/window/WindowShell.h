// The desktop's side of a managed window, with its view tree.
#pragma once

#include <QQuickWindow>
#include <QtQml/qqmlregistration.h>

#include <memory>
#include <optional>

class QQmlEngine;

namespace vantle {

class FrameRoot;
class WindowManager;
struct WindowRules;

/// A window without the desktop's frame, which has a place in the task bar and takes the keyboard
/// as any other. It owns the view tree, then the view model, then its share of the engine, and
/// gives them up in this order. Main thread.
class WindowShell : public QQuickWindow {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by its managed window.")

public:
    /// `windowManager` must outlive the window.
    WindowShell(std::shared_ptr<QQmlEngine> engine, WindowManager& windowManager);
    ~WindowShell() override;

    /// Makes the frame with the view in it. False when the view is no good. `rounded` says that the
    /// corners may be transparent.
    [[nodiscard]] bool load(const WindowRules& rules, const QUrl& view,
                            std::unique_ptr<QObject> model, bool rounded);

    /// Whether the corners may be transparent from now on. After load().
    void setRounded(bool rounded);

    /// Whether the strip has a button that minimises. After load().
    void setMinimisable(bool minimisable);

    /// What the frame asks for: the view's own size and the strip. After load().
    [[nodiscard]] QSize fittingSize() const;
    /// The view model. After load().
    [[nodiscard]] QObject& model() const { return *m_model; }

    // What the frame's strip and edges do, with a button of the pointer down. Where the window
    // manager does neither, the window follows the pointer by itself until the release.
    Q_INVOKABLE void beginMove();
    Q_INVOKABLE void beginResize(int edges);
    Q_INVOKABLE void minimise() { showMinimized(); }
    /// Asks the owner; the window goes after the present handler.
    Q_INVOKABLE void requestClose() { Q_EMIT closeRequested(); }
    Q_INVOKABLE void requestQuit() { Q_EMIT quitRequested(); }

Q_SIGNALS:
    /// The person or the desktop wants the window closed.
    void closeRequested();
    /// The person pressed the program's own key for its end.
    void quitRequested();
    /// The view asks for another size.
    void fittingSizeChanged();

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void dragTo(QPoint pointer);

    /// Where the pointer and the window were at the last press.
    struct Press {
        QPoint pointer;
        QRect frame;
    };

    std::shared_ptr<QQmlEngine> m_engine;
    std::unique_ptr<QObject> m_model;
    WindowManager& m_windowManager;
    std::unique_ptr<FrameRoot> m_frame;
    Press m_press;
    std::optional<Qt::Edges> m_held; ///< what follows the pointer by hand; no edges move all of it
};

} // namespace vantle
