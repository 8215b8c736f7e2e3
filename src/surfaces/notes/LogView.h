// The model of the notes window.
#pragma once

#include "base/Calendar.h"
#include "base/Scheduler.h"
#include "surfaces/notes/NoteFilters.h"
#include "surfaces/notes/NoteRows.h"

#include <QObject>
#include <QQmlEngine>

#include <functional>
#include <optional>

namespace vantle {

class Clock;
class NotificationCenter;
class Preferences;
class SkillList;
class TrackerCore;

/// All sessions with a note, with search, copy and edit. Reads the log on construction, after every
/// change of log or skills, and after an edit; searches in memory. A failed write sets `failure`
/// and leaves the note unchanged. Main thread.
class LogView final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the window router.")
    Q_PROPERTY(vantle::NoteRows* rows READ rows CONSTANT FINAL)
    Q_PROPERTY(vantle::NoteFilters* filters READ filters CONSTANT FINAL)
    Q_PROPERTY(State state READ state NOTIFY shownChanged FINAL)
    /// The number of notes shown, and the word after it.
    Q_PROPERTY(QString countText READ countText NOTIFY shownChanged FINAL)
    Q_PROPERTY(QString subtitleText READ subtitleText NOTIFY shownChanged FINAL)
    Q_PROPERTY(QString footerText READ footerText NOTIFY shownChanged FINAL)
    /// The widest time of day, for the column of times.
    Q_PROPERTY(QString widestTimeText READ widestTimeText NOTIFY shownChanged FINAL)
    Q_PROPERTY(bool showsFilters READ showsFilters NOTIFY shownChanged FINAL)
    Q_PROPERTY(bool showsAll READ showsAll NOTIFY filterChanged FINAL)
    Q_PROPERTY(QString query READ query WRITE setQuery NOTIFY filterChanged FINAL)
    /// The row being edited and its draft; empty when there is none.
    Q_PROPERTY(QString editingId READ editingId NOTIFY editingChanged FINAL)
    Q_PROPERTY(QString draft READ draft WRITE setDraft NOTIFY draftChanged FINAL)
    /// The row whose note was just copied.
    Q_PROPERTY(QString copiedId READ copiedId NOTIFY copiedIdChanged FINAL)
    /// Why the last edit could not be saved; empty otherwise.
    Q_PROPERTY(QString failure READ failure NOTIFY failureChanged FINAL)

public:
    enum class State { Empty, NothingFits, Listed };
    Q_ENUM(State)

    static constexpr double copiedSeconds = 1.4;

    /// The services of the window. All of them must outlive the model.
    struct Environment {
        TrackerCore& tracker;
        SkillList& skills;
        NotificationCenter& notifications;
        const Preferences& preferences;
        const Clock& clock;
        Scheduler& scheduler;
        std::function<Calendar()> calendar;
        std::function<void(const QString&)> copy; ///< copies to the clipboard
    };

    explicit LogView(Environment environment);
    ~LogView() override;

    [[nodiscard]] NoteRows* rows() { return &m_rows; }
    [[nodiscard]] NoteFilters* filters() { return &m_filters; }
    [[nodiscard]] State state() const;
    [[nodiscard]] QString countText() const;
    [[nodiscard]] QString subtitleText() const;
    [[nodiscard]] QString footerText() const;
    [[nodiscard]] const QString& widestTimeText() const { return m_rows.widestTimeText(); }
    [[nodiscard]] bool showsFilters() const { return !m_rows.content().log.skills.empty(); }
    [[nodiscard]] bool showsAll() const { return !m_filter.skillId; }
    [[nodiscard]] const QString& query() const { return m_filter.query; }
    [[nodiscard]] const QString& editingId() const { return m_editingId; }
    [[nodiscard]] const QString& draft() const { return m_draft; }
    [[nodiscard]] const QString& copiedId() const { return m_copiedId; }
    [[nodiscard]] const QString& failure() const { return m_failure; }

    void setQuery(const QString& query);
    Q_INVOKABLE void showSkill(const QString& skillId);
    Q_INVOKABLE void showAll();
    Q_INVOKABLE void clearFilters();

    Q_INVOKABLE void copyNote(const QString& id);

    Q_INVOKABLE void beginEdit(const QString& id);
    void setDraft(const QString& draft);
    /// Saves a changed draft and ends the edit.
    Q_INVOKABLE void commitEdit();
    Q_INVOKABLE void cancelEdit();

Q_SIGNALS:
    void shownChanged();
    void filterChanged();
    void editingChanged();
    void draftChanged();
    void copiedIdChanged();
    void copied(); ///< a note, possibly the same again
    void failureChanged();

private:
    void reload();
    void narrow(LogFilter filter);
    [[nodiscard]] NoteRows::Content content(NotesLog log) const;
    [[nodiscard]] const LogEntry* entry(const QString& id) const;
    void setFailure(const QString& failure);
    void setCopiedId(const QString& id);

    const Environment m_env;
    NoteRows m_rows;
    NoteFilters m_filters;
    LogFilter m_filter;
    QString m_editingId;
    QString m_draft;
    QString m_copiedId;
    QString m_failure;
    TimerHandle m_copiedEnds;
    TimerHandle m_dayEnds; ///< fires when "Today" becomes another day
};

} // namespace vantle
