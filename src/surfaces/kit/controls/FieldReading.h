// What a screen reader is told of a text field, and what it may do there.
#pragma once

#include <QAccessible>
#include <QObject>
#include <QRectF>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace vantle {

/// A child of a TextInput, whose accessible interface it replaces. The toolkit's own one never
/// returns when it is asked for the word at the end of the text (its textAtOffset() looks for a
/// boundary beyond it), has no attribute runs, without which readers are silent about the text, and
/// can't be edited. The class of a TextInput is private to the toolkit, so the field binds what is
/// asked of it and carries out what is wanted of it. One per field, made with it; main thread.
class FieldReading : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY nameChanged)
    Q_PROPERTY(QString description READ description WRITE setDescription NOTIFY descriptionChanged)
    // As the input has them, in characters of its text.
    Q_PROPERTY(int cursorPosition MEMBER m_cursorPosition NOTIFY cursorPositionChanged)
    Q_PROPERTY(int selectionStart MEMBER m_selectionStart NOTIFY selectionStartChanged)
    Q_PROPERTY(int selectionEnd MEMBER m_selectionEnd NOTIFY selectionEndChanged)
    /// The field's answer to caretRectWanted(), in px of the input.
    Q_PROPERTY(QRectF caretRect MEMBER m_caretRect NOTIFY caretRectChanged)

public:
    explicit FieldReading(QObject* parent = nullptr) : QObject(parent) {}

    [[nodiscard]] const QString& name() const { return m_name; }
    void setName(const QString& name);
    [[nodiscard]] const QString& description() const { return m_description; }
    void setDescription(const QString& description);

    [[nodiscard]] const QString& text() const { return m_text; }
    [[nodiscard]] int cursorPosition() const { return m_cursorPosition; }
    [[nodiscard]] int selectionStart() const { return m_selectionStart; }
    [[nodiscard]] int selectionEnd() const { return m_selectionEnd; }
    /// Where the caret would stand before that character.
    [[nodiscard]] QRectF caretRectAt(int offset) {
        Q_EMIT caretRectWanted(offset);
        return m_caretRect;
    }

    /// Reports how the text differs from the one reported last. To be called after each change.
    Q_INVOKABLE void follow(const QString& text);

Q_SIGNALS:
    void nameChanged();
    void descriptionChanged();
    /// A reader put the focus into the field. A window without the keyboard has to ask for it.
    void focusWanted();
    // What a reader does to the text. All places are within it.
    void selectionWanted(int start, int end); ///< an empty one selects nothing
    void caretWanted(int offset);
    void removalWanted(int start, int end);
    void insertionWanted(int offset, const QString& text);
    void sightWanted(int offset); ///< the character is to be scrolled into sight
    void caretRectWanted(int offset);

    void cursorPositionChanged();
    void selectionStartChanged();
    void selectionEndChanged();
    void caretRectChanged();

private:
    QString m_name;
    QString m_description;
    QString m_text; ///< as it was reported last
    int m_cursorPosition = 0;
    int m_selectionStart = 0;
    int m_selectionEnd = 0;
    QRectF m_caretRect;
};

/// The part of `text` of that kind that holds the character at `offset`, `step` parts further on
/// (-1 before, 0 at, 1 after). Parts leave no gap: a word has the white space behind it, and the
/// whole of a field is one line and one paragraph. At the end of the text the last part is meant,
/// but no character. Empty at -1, -1 when `offset` is outside of the text, at the end it would
/// leave when there is no such part.
struct TextPart {
    int start = -1;
    int end = -1;
};
[[nodiscard]] TextPart textPart(const QString& text, int offset, QAccessible::TextBoundaryType kind,
                                int step);

} // namespace vantle
