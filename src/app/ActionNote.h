// The one-line status of the last command.
#pragma once

#include <QObject>
#include <QString>

#include <optional>

namespace vantle {

class TrackerCore;

/// Every failure of a command ends here. Main thread.
class ActionNote final : public QObject {
    Q_OBJECT

public:
    /// The tracker must outlive the note.
    explicit ActionNote(const TrackerCore& tracker) : m_tracker(tracker) {}

    /// Empty when there is none.
    [[nodiscard]] const std::optional<QString>& text() const { return m_text; }

    void clear() { set(std::nullopt); }
    void say(const QString& text) { set(text); }
    /// Says `text`, or the tracker's own words about storage where there are some.
    void report(const QString& text);

Q_SIGNALS:
    void changed();

private:
    void set(std::optional<QString> text);

    const TrackerCore& m_tracker;
    std::optional<QString> m_text;
};

} // namespace vantle
