// The accessible interface of a text field.
#pragma once

#include <QAccessible>
#include <QObject>
#include <QRectF>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace vantle {

/// A child of a TextInput whose accessible interface it replaces. Qt's own one never returns when
/// asked for the word at the end of the text (its textAtOffset() searches for a boundary beyond
/// it), has no attribute runs, without which readers do not read the text, and cannot be edited.
/// TextInput's class is private to Qt, so the field binds the properties and carries out the
/// requests. One per field, constructed with it. Main thread.
class FieldReading : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY nameChanged)
    Q_PROPERTY(QString description READ description WRITE setDescription NOTIFY descriptionChanged)
    // As in the input, in characters.
    Q_PROPERTY(int cursorPosition MEMBER m_cursorPosition NOTIFY cursorPositionChanged)
    Q_PROPERTY(int selectionStart MEMBER m_selectionStart NOTIFY selectionStartChanged)
    Q_PROPERTY(int selectionEnd MEMBER m_selectionEnd NOTIFY selectionEndChanged)
    /// The field's reply to caretRectWanted(), in px of the input.
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
    /// Returns the caret's rectangle before that character.
    [[nodiscard]] QRectF caretRectAt(int offset) {
        Q_EMIT caretRectWanted(offset);
        return m_caretRect;
    }

    /// Reports the difference from the last text. Call after each change.
    Q_INVOKABLE void follow(const QString& text);

Q_SIGNALS:
    void nameChanged();
    void descriptionChanged();
    /// A reader focused the field. A window without keyboard focus must request it.
    void focusWanted();
    // Edits by a reader; all positions are valid.
    void selectionWanted(int start, int end); ///< an empty range clears the selection
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

/// Returns the part of `text` around `offset`, shifted by `step` parts (-1 before, 0 at, 1 after).
/// Parts are adjacent: a word includes the following white space, and a field is one line and one
/// paragraph. At the end of the text it returns the last part, but no character. Empty at -1, -1
/// when `offset` is outside; empty at the end when there is no such part.
struct TextPart {
    int start = -1;
    int end = -1;
};
[[nodiscard]] TextPart textPart(const QString& text, int offset, QAccessible::TextBoundaryType kind,
                                int step);

} // namespace vantle
