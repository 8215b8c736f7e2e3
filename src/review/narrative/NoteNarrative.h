// The notes of a period in one sentence of a language model, after a line of hours.
#pragma once

#include "base/Scheduler.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>

namespace vantle {

class LanguageModel;

/// Asks the model, and passes on what is fit to be shown. Every failure is silence: a model that is
/// not there, fails, refuses or answers in another form gives nothing, and nobody is told why.
///
/// Main thread; waits for nothing.
class NoteNarrative {
public:
    /// Both must outlive it and its requests.
    NoteNarrative(LanguageModel& model, Scheduler& scheduler)
        : m_model(model)
        , m_scheduler(scheduler) {}

    [[nodiscard]] bool isAvailable() const;

    /// A narrative on its way. Destroy it and `done` is never called; a model that is still at it
    /// is told to stop.
    class Request {
    public:
        virtual ~Request() = default;
    };
    using RequestHandle = std::unique_ptr<Request>;

    /// "12 hours this week, mostly Build. You ..." for notes that stand newest first, of which the
    /// first 40 are told. The words "this week" stand there for every period. Nothing when there
    /// are fewer than two notes, or under 40 characters of them. `done` is called once, from the
    /// event loop.
    [[nodiscard]] RequestHandle weekly(const QString& hoursSummary,
                                       const std::optional<QString>& topSkill,
                                       const QStringList& notes,
                                       std::function<void(std::optional<QString>)> done) const;

private:
    LanguageModel& m_model;
    Scheduler& m_scheduler;
};

} // namespace vantle
