// The root item of everything that stands in a FloatingPanel.
#pragma once

#include <QQmlEngine>
#include <QQuickItem>

namespace vantle {

/// What a view and its window tell each other. A focus scope, like the root of any view that takes
/// keys. Main thread.
class PanelRoot : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    /// From the window: whether what is transparent shows what lies below. If not, the view draws
    /// its ground alone, with square corners.
    Q_PROPERTY(bool composited MEMBER m_composited NOTIFY compositedChanged)
    /// From the window: set once it is shown, and cleared when the view is to go.
    Q_PROPERTY(bool up MEMBER m_up NOTIFY upChanged)
    /// From the window, in px: what the screen leaves for the ground's height.
    Q_PROPERTY(int maximumHeight MEMBER m_maximumHeight NOTIFY maximumHeightChanged)
    /// From the view, in px of its own: what the user sees of it, without its shadow.
    Q_PROPERTY(QRectF groundRect MEMBER m_groundRect NOTIFY groundRectChanged)
    /// From the view, in ms: how long its window takes to glide out of the way of another.
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
    /// The room for the shadow, around the ground.
    [[nodiscard]] QMargins room() const;
    [[nodiscard]] int moveTime() const { return m_moveTime; }

Q_SIGNALS:
    void compositedChanged();
    void upChanged();
    void maximumHeightChanged();
    void groundRectChanged();
    void moveTimeChanged();
    void dismissed(); ///< the user wants it gone
    void gone();      ///< it was to go, and can't be seen any more

private:
    bool m_composited = true;
    bool m_up = false;
    int m_maximumHeight = 1'000'000;
    QRectF m_groundRect;
    int m_moveTime = 0;
};

} // namespace vantle
