// The list model of the notes window, grouped by day.
#pragma once

#include "base/DateText.h"
#include "surfaces/notes/DayLabels.h"
#include "surfaces/notes/NotesLog.h"

#include <QAbstractListModel>
#include <QQmlEngine>

#include <memory>

namespace vantle {

/// The shown rows. Texts are made on demand. Main thread.
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
        DayRole,    ///< the heading of the row's day
        SpokenRole, ///< the row for screen readers; the first of a day names it
    };

    /// The input of the rows.
    struct Content {
        NotesLog log;
        noteslog::Places visible;
        Date now; ///< for "Today"
        Calendar calendar;
        DurationStyle style = DurationStyle::Natural;
        LogFilter filter = {}; ///< whose matches are visible
    };

    NoteRows();

    [[nodiscard]] const Content& content() const { return m_content; }
    /// The widest time of day.
    [[nodiscard]] const QString& widestTimeText() const { return m_widestTime; }

    /// Applies the filter. Keeps the view of session `kept` if it passes before and after, since
    /// the view holds its editor's caret. Other rows are removed and inserted.
    void narrow(const LogFilter& filter, const QUuid& kept = {});

    /// Updates the list: rows that stay keep their view.
    void update(Content content);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    /// A row in display order.
    struct Row {
        std::size_t place = 0; ///< index in the log
        std::size_t day = 0;   ///< in m_days
    };
    /// The rows of a content.
    struct Lines {
        std::vector<noteslog::LogDay> days;
        std::vector<Row> rows;
    };
    [[nodiscard]] static Lines linesOf(const Content& content);
    void adopt(Content content, Lines lines);
    /// Returns the session's row index; their number when it is not shown.
    [[nodiscard]] std::ptrdiff_t placeOf(const QUuid& session, const Lines& lines) const;
    void removeRange(std::ptrdiff_t first, std::ptrdiff_t count);
    /// Shows the first `upTo` rows, of which `count` from `first` on are new.
    void insertRange(std::ptrdiff_t first, std::ptrdiff_t count, const Lines& lines,
                     std::ptrdiff_t upTo);
    /// Puts `lines` in place of all rows.
    void replaceRows(Lines lines);
    [[nodiscard]] QString spoken(std::size_t number) const;
    [[nodiscard]] const LogEntry& entryOf(const Row& row) const {
        return m_content.log.entries[row.place];
    }

    Content m_content;
    Lines m_lines;
    DateText m_time;
    std::unique_ptr<DayLabels> m_dayLabels; ///< null before there is content
    QString m_widestTime;
};

} // namespace vantle
