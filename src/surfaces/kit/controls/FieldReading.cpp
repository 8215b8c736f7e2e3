#include "surfaces/kit/controls/FieldReading.h"

#include <QAccessibleObject>
#include <QCoreApplication>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTextBoundaryFinder>

#include <algorithm>
#include <array>
#include <utility>

namespace vantle {

namespace {

/// Returns where the parts of that kind begin, starting with 0.
QList<int> starts(const QString& text, QAccessible::TextBoundaryType kind) {
    QList<int> found{0};
    if (kind != QAccessible::CharBoundary && kind != QAccessible::WordBoundary &&
        kind != QAccessible::SentenceBoundary)
        return found;
    QTextBoundaryFinder finder(kind == QAccessible::CharBoundary   ? QTextBoundaryFinder::Grapheme
                               : kind == QAccessible::WordBoundary ? QTextBoundaryFinder::Word
                                                                   : QTextBoundaryFinder::Sentence,
                               text);
    while (finder.toNextBoundary() >= 0) {
        const auto at = static_cast<int>(finder.position());
        if (at >= text.size()) break;
        if (kind == QAccessible::WordBoundary &&
            !finder.boundaryReasons().testFlag(QTextBoundaryFinder::StartOfItem))
            continue;
        found << at;
    }
    return found;
}

class FieldInterface final : public QAccessibleObject,
                             public QAccessibleTextInterface,
                             public QAccessibleEditableTextInterface,
                             public QAccessibleActionInterface {
public:
    explicit FieldInterface(QQuickItem& item) : QAccessibleObject(&item) {}

    // -- where it stands

    [[nodiscard]] QAccessibleInterface* parent() const override {
        for (QQuickItem* above = item().parentItem(); above; above = above->parentItem())
            if (QAccessibleInterface* const told = QAccessible::queryAccessibleInterface(above))
                return told;
        return QAccessible::queryAccessibleInterface(item().window());
    }
    [[nodiscard]] QAccessibleInterface* child(int) const override { return nullptr; }
    [[nodiscard]] int childCount() const override { return 0; }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    [[nodiscard]] QWindow* window() const override { return item().window(); }
    [[nodiscard]] QRect rect() const override {
        return onScreen({0, 0, item().width(), item().height()});
    }

    // -- what it is

    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::EditableText; }
    [[nodiscard]] QString text(QAccessible::Text which) const override {
        switch (which) {
        case QAccessible::Name:
            return reading() ? reading()->name() : QString();
        case QAccessible::Description:
            return reading() ? reading()->description() : QString();
        case QAccessible::Value:
            return content();
        default:
            return {};
        }
    }
    void setText(QAccessible::Text which, const QString& text) override {
        if (which == QAccessible::Value) replaceText(0, characterCount(), text);
    }
    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state;
        const QWindow* const around = window();
        state.disabled = !item().isEnabled();
        state.focusable = item().isEnabled();
        state.focused = item().hasActiveFocus();
        state.editable = true;
        state.selectableText = true;
        state.invisible = !around || !around->isVisible() || !item().isVisible();
        state.offscreen = !around || !around->geometry().intersects(rect());
        return state;
    }
    void* interface_cast(QAccessible::InterfaceType type) override {
        switch (type) {
        case QAccessible::TextInterface:
            return static_cast<QAccessibleTextInterface*>(this);
        case QAccessible::EditableTextInterface:
            return static_cast<QAccessibleEditableTextInterface*>(this);
        case QAccessible::ActionInterface:
            return static_cast<QAccessibleActionInterface*>(this);
        default:
            return nullptr;
        }
    }

    // -- actions

    [[nodiscard]] QStringList actionNames() const override { return {setFocusAction()}; }
    void doAction(const QString& name) override {
        if (name != setFocusAction() || !item().isEnabled()) return;
        if (reading()) Q_EMIT reading()->focusWanted();
        item().forceActiveFocus(Qt::OtherFocusReason);
    }
    [[nodiscard]] QStringList keyBindingsForAction(const QString&) const override { return {}; }

    // -- the selection and the caret

    void selection(int index, int* start, int* end) const override {
        const bool isThere = index == 0 && selectionCount() == 1;
        *start = isThere ? reading()->selectionStart() : 0;
        *end = isThere ? reading()->selectionEnd() : 0;
    }
    [[nodiscard]] int selectionCount() const override {
        return reading() && reading()->selectionStart() != reading()->selectionEnd() ? 1 : 0;
    }
    void addSelection(int start, int end) override { select(start, end); }
    void removeSelection(int index) override {
        if (index == 0) select(cursorPosition(), cursorPosition());
    }
    void setSelection(int index, int start, int end) override {
        if (index == 0) select(start, end);
    }
    [[nodiscard]] int cursorPosition() const override {
        return reading() ? reading()->cursorPosition() : 0;
    }
    void setCursorPosition(int position) override {
        if (reading()) Q_EMIT reading()->caretWanted(within(position));
    }

    // -- the text

    [[nodiscard]] QString text(int start, int end) const override {
        const QString all = content();
        const int from = within(start);
        return all.sliced(from, std::max(from, end < 0 ? characterCount() : within(end)) - from);
    }
    [[nodiscard]] int characterCount() const override { return static_cast<int>(content().size()); }
    QString textBeforeOffset(int offset, QAccessible::TextBoundaryType kind, int* start,
                             int* end) const override {
        return part(offset, kind, -1, start, end);
    }
    QString textAtOffset(int offset, QAccessible::TextBoundaryType kind, int* start,
                         int* end) const override {
        return part(offset, kind, 0, start, end);
    }
    QString textAfterOffset(int offset, QAccessible::TextBoundaryType kind, int* start,
                            int* end) const override {
        return part(offset, kind, 1, start, end);
    }
    QString attributes(int offset, int* start, int* end) const override {
        const bool isInside = offset >= 0 && offset <= characterCount();
        *start = isInside ? 0 : -1; // one run: all of the text has the same attributes
        *end = isInside ? characterCount() : -1;
        return {};
    }

    // -- where the text stands

    [[nodiscard]] QRect characterRect(int offset) const override {
        if (offset < 0 || offset > characterCount()) return {};
        QRectF place = caretRect(offset);
        if (offset < characterCount()) {
            const double next = caretRect(offset + 1).left();
            place.setWidth(std::abs(next - place.left()));
            place.moveLeft(std::min(place.left(), next));
        }
        return onScreen(place);
    }
    [[nodiscard]] int offsetAtPoint(const QPoint& point) const override {
        if (!rect().contains(point)) return -1;
        for (int offset = 0; offset < characterCount(); ++offset)
            if (characterRect(offset).contains(QPoint(point.x(), characterRect(offset).y())))
                return offset;
        return characterCount();
    }
    void scrollToSubstring(int start, int end) override {
        if (!reading()) return;
        Q_EMIT reading()->sightWanted(within(end));
        Q_EMIT reading()->sightWanted(within(start));
    }

    // -- editing

    void deleteText(int start, int end) override { replaceText(start, end, {}); }
    void insertText(int offset, const QString& text) override { replaceText(offset, offset, text); }
    void replaceText(int start, int end, const QString& text) override {
        if (!item().isEnabled() || !reading()) return;
        const int from = within(start);
        const int to = std::max(from, within(end));
        if (to > from) Q_EMIT reading()->removalWanted(from, to);
        if (!text.isEmpty()) Q_EMIT reading()->insertionWanted(from, text);
    }

private:
    [[nodiscard]] QQuickItem& item() const { return static_cast<QQuickItem&>(*object()); }
    [[nodiscard]] QString content() const { return reading() ? reading()->text() : QString(); }
    [[nodiscard]] int within(int offset) const { return std::clamp(offset, 0, characterCount()); }
    void select(int start, int end) {
        if (reading()) Q_EMIT reading()->selectionWanted(within(start), within(end));
    }
    QString part(int offset, QAccessible::TextBoundaryType kind, int step, int* start,
                 int* end) const {
        const QString all = content();
        // Qt's special offsets: -1 is the end, -2 the caret.
        if (offset == -1) offset = characterCount();
        if (offset == -2) offset = cursorPosition();
        const TextPart found = textPart(all, offset, kind, step);
        *start = found.start;
        *end = found.end;
        return found.start < 0 ? QString() : all.sliced(found.start, found.end - found.start);
    }
    [[nodiscard]] QRectF caretRect(int offset) const {
        return reading() ? reading()->caretRectAt(offset) : QRectF();
    }
    [[nodiscard]] QRect onScreen(const QRectF& place) const {
        const QRect scene = item().mapRectToScene(place).toRect();
        const QWindow* const around = window();
        return around ? scene.translated(around->mapToGlobal(QPoint())) : scene;
    }
    /// Null during the field's construction, when readers are notified of it already.
    [[nodiscard]] FieldReading* reading() const {
        return item().findChild<FieldReading*>(QString(), Qt::FindDirectChildrenOnly);
    }
};

/// Called for each class of an object, most derived first; null leaves it to Qt.
QAccessibleInterface* fieldInterface(const QString& type, QObject* object) {
    if (type != QLatin1String("QQuickTextInput")) return nullptr;
    auto* const item = qobject_cast<QQuickItem*>(object);
    return item ? new FieldInterface(*item) : nullptr;
}

// Call before the first field is constructed, which notifies readers.
void installFieldInterface() { QAccessible::installFactory(&fieldInterface); }
Q_COREAPP_STARTUP_FUNCTION(installFieldInterface)

} // namespace

TextPart textPart(const QString& text, int offset, QAccessible::TextBoundaryType kind, int step) {
    const auto length = static_cast<int>(text.size());
    if (offset < 0 || offset > length) return {};
    const QList<int> begin = starts(text, kind);
    auto index = static_cast<int>(std::ranges::upper_bound(begin, offset) - begin.begin()) - 1;
    if (kind == QAccessible::CharBoundary && offset == length) index = int(begin.size());
    if (length == 0) index = 0;
    index += step;
    if (length == 0 || index >= begin.size()) return {length, length};
    if (index < 0) return {0, 0};
    return {begin[index], index + 1 < begin.size() ? begin[index + 1] : length};
}

void FieldReading::setName(const QString& name) {
    if (std::exchange(m_name, name) != name) Q_EMIT nameChanged();
}

void FieldReading::setDescription(const QString& description) {
    if (std::exchange(m_description, description) != description) Q_EMIT descriptionChanged();
}

void FieldReading::follow(const QString& text) {
    const QString before = std::exchange(m_text, text);
    if (!QAccessible::isActive() || before == text) return;
    const auto shorter = std::min(before.size(), text.size());
    qsizetype head = 0;
    while (head < shorter && before[head] == text[head])
        ++head;
    qsizetype tail = 0;
    while (tail < shorter - head &&
           before[before.size() - 1 - tail] == text[text.size() - 1 - tail])
        ++tail;
    const QString removed = before.sliced(head, before.size() - head - tail);
    const QString added = text.sliced(head, text.size() - head - tail);
    const auto place = static_cast<int>(head);
    if (removed.isEmpty()) {
        QAccessibleTextInsertEvent event(parent(), place, added);
        QAccessible::updateAccessibility(&event);
    } else if (added.isEmpty()) {
        QAccessibleTextRemoveEvent event(parent(), place, removed);
        QAccessible::updateAccessibility(&event);
    } else {
        QAccessibleTextUpdateEvent event(parent(), place, removed, added);
        QAccessible::updateAccessibility(&event);
    }
}

} // namespace vantle
