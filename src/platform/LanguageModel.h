// A language model that runs on this machine, if the person has one.
//
// Main thread throughout. Nothing that a model is asked leaves the machine.
#pragma once

#include <QString>

#include <functional>
#include <memory>
#include <optional>

namespace vantle {

/// A conversation: every answer is given with all that was said before in view. Destroy it and no
/// question is answered any more, also inside an answer.
class LanguageModelSession {
public:
    virtual ~LanguageModelSession() = default;

    /// Called once for each prompt from the event loop: with the text, or with nothing when the
    /// model failed, refused or took too long.
    using Answer = std::function<void(std::optional<QString>)>;

    /// Asks. One question at a time: the next may be put once the last is answered, also from
    /// within its answer.
    virtual void respond(const QString& prompt, Answer answered) = 0;
};

class LanguageModel {
public:
    virtual ~LanguageModel() = default;

    /// Whether there is a model to ask. Cheap, and asked anew each time, since models come and go.
    [[nodiscard]] virtual bool isAvailable() const = 0;

    /// A new conversation under these instructions; never null. Whether the model is there shows in
    /// the answers. The model must outlive it.
    [[nodiscard]] virtual std::unique_ptr<LanguageModelSession>
    openSession(const QString& instructions) = 0;
};

} // namespace vantle
