// The root item of a view in a FloatingPanel.
#pragma once

#include <QQmlEngine>
#include <QQuickItem>

namespace vantle {

/// The interface between view and window. A focus scope, like the root of every view with keys.
/// Main thread.
class PanelRoot : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    /// Set by the window: whether transparent parts show what is below. Otherwise the view draws
    /// only its background, with square corners.
    Q_PROPERTY(bool composited MEMBER m_composited NOTIFY compositedChanged)
    /// Set by the window once it is shown; cleared to dismiss the view.
    Q_PROPERTY(bool up MEMBER m_up NOTIFY upChanged)
    /// Set by the window, in px: the height available on the screen.
    Q_PROPERTY(int maximumHeight MEMBER m_maximumHeight NOTIFY maximumHeightChanged)
    /// Set by the view, in its px: the visible part without the shadow.
    Q_PROPERTY(QRectF groundRect MEMBER m_groundRect NOTIFY groundRectChanged)
    /// Set by the view, in ms: how long the window takes to slide out of another one's way.
    Q_PROPERTY(int moveTime MEMBER m_moveTime NOTIFY moveTimeChanged)

public:
    explicit PanelRoot(QQuickItem* parent = nullptr) : QQuickItem(parent) {
        setFlag(ItemIsFocusScope);
    }

    void setComposited(bool composited);
    [[nodiscard]] bool isComposited() const { return m_composited; }
    void setUp(bool up);
    [[nodiscard]] bool isUp() const { return m_up; }
    void setMaximumHeight(int height);
    [[nodiscard]] QRect ground() const { return m_groundRect.toRect(); }
    /// The room for the shadow.
    [[nodiscard]] QMargins room() const;
    [[nodiscard]] int moveTime() const { return m_moveTime; }

Q_SIGNALS:
    void compositedChanged();
    void upChanged();
    void maximumHeightChanged();
    void groundRectChanged();
    void moveTimeChanged();
    void dismissed(); ///< the user wants it closed
    void gone();      ///< dismissed, and no longer visible

private:
    bool m_composited = true;
    bool m_up = false;
    int m_maximumHeight = 1'000'000;
    QRectF m_groundRect;
    int m_moveTime = 0;
};

} // namespace vantle
