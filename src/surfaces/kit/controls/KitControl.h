// The base of controls that take keyboard focus.
#pragma once

#include <QQuickItem>

namespace vantle {

/// Tracks whether the keyboard moved the focus to it, since only then a focus ring is shown; not
/// for initial focus, clicks or code. Main thread.
class KitControl : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    /// Focused, and the user works by keyboard.
    Q_PROPERTY(bool keyboardFocus READ keyboardFocus NOTIFY keyboardFocusChanged)

public:
    explicit KitControl(QQuickItem* parent = nullptr);

    [[nodiscard]] bool keyboardFocus() const { return hasActiveFocus() && m_byKeyboard; }

    /// The user switched to the pointer.
    Q_INVOKABLE void forgetKeyboard();
    /// Takes the focus as by keyboard, for arrow keys within a group.
    Q_INVOKABLE void focusByKeyboard() { forceActiveFocus(Qt::TabFocusReason); }

Q_SIGNALS:
    void keyboardFocusChanged();

protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void publish();

    bool m_byKeyboard = false;
    bool m_published = false;
};

} // namespace vantle
