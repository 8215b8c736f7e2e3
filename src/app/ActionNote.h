// The one-line status of the last command.
#pragma once

#include <QObject>
#include <QString>

#include <optional>

namespace vantle {

class TrackerCore;

/// Shows how every failed command ended. Main thread.
class ActionNote final : public QObject {
    Q_OBJECT

public:
    /// The tracker must outlive the note.
    explicit ActionNote(const TrackerCore& tracker) : m_tracker(tracker) {}

    /// Empty when there is none.
    [[nodiscard]] const std::optional<QString>& text() const { return m_text; }

    void clear() { set(std::nullopt); }
    void say(const QString& text) { set(text); }
    /// Shows `text`, or the tracker's storage error where there is one.
    void report(const QString& text);

Q_SIGNALS:
    void changed();

private:
    void set(std::optional<QString> text);

    const TrackerCore& m_tracker;
    std::optional<QString> m_text;
};

} // namespace vantle
