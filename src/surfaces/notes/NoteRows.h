// The rows of the notes window, for a list view with a heading for each day.
#pragma once

#include "base/DateText.h"
#include "surfaces/notes/DayLabels.h"
#include "surfaces/notes/NotesLog.h"

#include <QAbstractListModel>
#include <QQmlEngine>

#include <memory>

namespace vantle {

/// What is shown now. Texts are made when a row comes into sight. Main thread.
class NoteRows : public QAbstractListModel {
    Q_OBJECT
    QML_ANONYMOUS

public:
    enum Role {
        IdRole = Qt::UserRole,
        NoteRole,
        TimeRole,
        SkillNameRole,
        SkillColorRole,
        DurationRole,
        IsManualRole,
        DayRole,    ///< the heading that the row stands under
        SpokenRole, ///< all of the row in words, for assistive tools; the first of a day names it
    };

    /// All that the rows are made of.
    struct Content {
        NotesLog log;
        noteslog::Places visible;
        Date now; ///< for "Today"
        Calendar calendar;
        DurationStyle style = DurationStyle::Natural;
    };

    NoteRows();

    [[nodiscard]] const Content& content() const { return m_content; }
    /// As wide as a time of day can be.
    [[nodiscard]] const QString& widestTimeText() const { return m_widestTime; }

    /// Shows what passes the filter. The row of the session `kept` keeps its view where it passes
    /// before and after: a view holds the caret of its editor. All others are removed and inserted.
    void narrow(const LogFilter& filter, const QUuid& kept = {});

    /// Shows what has become of the same list: rows that stay keep their place and their view.
    void update(Content content);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    /// A row in the order of the days.
    struct Row {
        std::size_t place = 0; ///< in the log
        std::size_t day = 0;   ///< in m_days
    };
    /// All that follows from a content.
    struct Lines {
        std::vector<noteslog::LogDay> days;
        std::vector<Row> rows;
    };
    [[nodiscard]] static Lines linesOf(const Content& content);
    void adopt(Content content, Lines lines);
    /// Where the session stands among the rows; their number when it does not.
    [[nodiscard]] std::ptrdiff_t placeOf(const QUuid& session, const Lines& lines) const;
    void removeRange(std::ptrdiff_t first, std::ptrdiff_t count);
    /// Shows the first `upTo` rows of the lines, of which `count` from `first` on are new.
    void insertRange(std::ptrdiff_t first, std::ptrdiff_t count, const Lines& lines,
                     std::ptrdiff_t upTo);
    [[nodiscard]] QString spoken(std::size_t number) const;
    [[nodiscard]] const LogEntry& entryOf(const Row& row) const {
        return m_content.log.entries[row.place];
    }

    Content m_content;
    Lines m_lines;
    DateText m_time;
    std::unique_ptr<DayLabels> m_dayLabels; ///< none before there is a content
    QString m_widestTime;
};

} // namespace vantle
