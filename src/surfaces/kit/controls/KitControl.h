// The root of a control that takes part in keyboard work.
#pragma once

#include <QQuickItem>

namespace vantle {

/// Knows whether the keyboard brought the focus to it: only then is a focus ring shown. A control
/// that has the focus from the start, by a click or by code shows none. Main thread.
class KitControl : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    /// The focus is here, and the person is working by keyboard.
    Q_PROPERTY(bool keyboardFocus READ keyboardFocus NOTIFY keyboardFocusChanged)

public:
    explicit KitControl(QQuickItem* parent = nullptr);

    [[nodiscard]] bool keyboardFocus() const { return hasActiveFocus() && m_byKeyboard; }

    /// The person has turned to the pointer.
    Q_INVOKABLE void forgetKeyboard();
    /// Takes the focus as the keyboard does: for arrow keys within a group.
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
