// A sentence by a language model about a period's notes.
#pragma once

#include "base/Scheduler.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>

namespace vantle {

class LanguageModel;

/// Asks the model and checks the answer. Failures are silent: a model that is missing, fails,
/// refuses, or answers in another form gives no narrative.
///
/// Main thread; does not block.
class NoteNarrative {
public:
    /// Both must outlive it and its requests.
    NoteNarrative(LanguageModel& model, Scheduler& scheduler)
        : m_model(model)
        , m_scheduler(scheduler) {}

    [[nodiscard]] bool isAvailable() const;

    /// A running request. Destroying it cancels the model's work; `done` is not called then.
    class Request {
    public:
        virtual ~Request() = default;
    };
    using RequestHandle = std::unique_ptr<Request>;

    /// Requests "12 hours this week, mostly Build. You ..." for notes, newest first; the model gets
    /// the first 40. The words "this week" are used for every period. Calls `done` once, from
    /// the event loop; empty for fewer than two notes, less than 40 characters, or any failure.
    [[nodiscard]] RequestHandle weekly(const QString& hoursSummary,
                                       const std::optional<QString>& topSkill,
                                       const QStringList& notes,
                                       std::function<void(std::optional<QString>)> done) const;

private:
    LanguageModel& m_model;
    Scheduler& m_scheduler;
};

} // namespace vantle
