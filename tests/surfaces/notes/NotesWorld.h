// The notes window over the log of a test.
#pragma once

#include "fakes/FaultyFileSystem.h"
#include "fakes/MemoryFileSystem.h"
#include "fakes/MemoryPreferences.h"
#include "fakes/VirtualTime.h"
#include "surfaces/notes/LogView.h"
#include "tracking/AppPaths.h"
#include "tracking/NotificationCenter.h"
#include "tracking/Samples.h"
#include "tracking/SkillList.h"
#include "tracking/TrackerCore.h"

#include <optional>

namespace vantle::tests {

class NotesWorld {
protected:
    NotesWorld() {
        time.attach(queue);
        paths.enforcePrivatePermissions();
    }

    /// Replaces the log.
    void put(const QByteArray& lines) { disk.setContent(paths.sessionsFile(), lines); }
    /// Writes one session per note, an hour apart, the last one newest.
    void write(const std::vector<const char*>& notes) {
        QByteArray lines;
        int number = 0;
        for (const char* note : notes) {
            Session session = samples::session(++number);
            session.note = QString::fromUtf8(note);
            lines += samples::line(session);
        }
        put(lines);
    }
    LogView& open() { return view.emplace(environment()); }
    [[nodiscard]] LogView::Environment environment() {
        return {tracker,
                skills,
                notifications,
                preferences,
                time,
                time,
                [] {
                    return Calendar{QStringLiteral("UTC"), 1, 1};
                },
                [this](const QString& text) { clipboard = text; }};
    }
    [[nodiscard]] QStringList shown(NoteRows::Role role = NoteRows::NoteRole) {
        QStringList texts;
        for (int row = 0; row < view->rows()->rowCount(); ++row)
            texts << view->rows()->data(view->rows()->index(row), role).toString();
        return texts;
    }
    [[nodiscard]] QString stored(int number) {
        for (const Session& session : SessionLog(paths).readAll().sessions)
            if (session.id == samples::id(number)) return session.note;
        return QStringLiteral("gone");
    }
    [[nodiscard]] static QString idOf(int number) { return samples::id(number).toString(); }

    fakes::VirtualTime time;
    fakes::ManualQueue queue;
    fakes::MemoryFileSystem disk;
    fakes::FaultyFileSystem files{disk};
    fakes::MemoryPreferences preferences;
    NotificationCenter notifications;
    AppPaths paths{files, QStringLiteral("/data")};
    SkillList skills{paths, queue, preferences};
    TrackerCore tracker{{time, time, queue, paths, preferences, skills, notifications}};
    QString clipboard;
    std::optional<LogView> view;
};

} // namespace vantle::tests
