// The toplevel of a managed window, with its view tree.
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

/// A window without the desktop's frame, with a task bar entry and normal keyboard focus. Owns view
/// tree, view model and a share of the engine, destroyed in this order. Main thread.
class WindowShell : public QQuickWindow {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by its managed window.")

public:
    /// `windowManager` must outlive the window.
    WindowShell(std::shared_ptr<QQmlEngine> engine, WindowManager& windowManager);
    ~WindowShell() override;

    /// Creates the frame with the view. Returns false for an invalid view. `rounded` allows
    /// transparent corners.
    [[nodiscard]] bool load(const WindowRules& rules, const QUrl& view,
                            std::unique_ptr<QObject> model, bool rounded);

    /// Allows or forbids transparent corners. Requires load().
    void setRounded(bool rounded);

    /// Shows or hides the minimise button. Requires load().
    void setMinimisable(bool minimisable);

    /// The size that the frame requests: the view's own plus the strip. Requires load().
    [[nodiscard]] QSize fittingSize() const;
    /// The view model. Requires load().
    [[nodiscard]] QObject& model() const { return *m_model; }

    // Called by the frame's strip and edges with a button down. Where the window manager does
    // neither, the window follows the pointer itself until the release.
    Q_INVOKABLE void beginMove();
    Q_INVOKABLE void beginResize(int edges);
    Q_INVOKABLE void minimise() { showMinimized(); }
    /// Asks the owner, which closes the window after the current handler.
    Q_INVOKABLE void requestClose() { Q_EMIT closeRequested(); }
    Q_INVOKABLE void requestQuit() { Q_EMIT quitRequested(); }

Q_SIGNALS:
    /// The user or the desktop wants the window closed.
    void closeRequested();
    /// The user pressed the Quit key.
    void quitRequested();
    /// The view requests another size.
    void fittingSizeChanged();

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void dragTo(QPoint pointer);

    /// Pointer and window positions at the last press.
    struct Press {
        QPoint pointer;
        QRect frame;
    };

    std::shared_ptr<QQmlEngine> m_engine;
    std::unique_ptr<QObject> m_model;
    WindowManager& m_windowManager;
    std::unique_ptr<FrameRoot> m_frame;
    Press m_press;
    std::optional<Qt::Edges> m_held; ///< edges being dragged; an empty set moves the window
};

} // namespace vantle
