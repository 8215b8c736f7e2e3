// The port of a language model on this machine.
//
// Main thread. Prompts never leave the machine.
#pragma once

#include <QString>

#include <functional>
#include <memory>
#include <optional>

namespace vantle {

/// A conversation: each answer takes everything before into account. Destroying it, also inside an
/// answer, drops pending answers.
class LanguageModelSession {
public:
    virtual ~LanguageModelSession() = default;

    /// Called once per prompt from the event loop, with the text; empty when the model failed,
    /// refused or timed out.
    using Answer = std::function<void(std::optional<QString>)>;

    /// Asks. One prompt at a time: the next may follow the answer, also from inside it.
    virtual void respond(const QString& prompt, Answer answered) = 0;
};

class LanguageModel {
public:
    virtual ~LanguageModel() = default;

    /// Whether there is a model. Cheap, and checked each time, since models come and go.
    [[nodiscard]] virtual bool isAvailable() const = 0;

    /// Starts a conversation with these instructions; never null. A missing model shows in its
    /// answers. The model must outlive it.
    [[nodiscard]] virtual std::unique_ptr<LanguageModelSession>
    openSession(const QString& instructions) = 0;
};

} // namespace vantle
