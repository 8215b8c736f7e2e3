// A language model whose answers the test gives.
#pragma once

#include "platform/LanguageModel.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace vantle::fakes {

class FakeLanguageModel final : public LanguageModel {
public:
    struct Call {
        bool opens = false; ///< instructions of a new session, else a prompt
        QString text;
    };

    [[nodiscard]] bool isAvailable() const override { return available; }
    [[nodiscard]] std::unique_ptr<LanguageModelSession>
    openSession(const QString& instructions) override {
        calls.push_back({true, instructions});
        return std::make_unique<Session>(*this);
    }

    /// Answers the oldest prompt; empty for a failure, and for any answer while the model is
    /// unavailable. Returns false without a prompt.
    bool answer(const std::optional<QString>& text) {
        if (m_waiting.empty()) return false;
        const auto answered = std::exchange(m_waiting.front()->answered, {});
        m_waiting.erase(m_waiting.begin());
        answered(available ? text : std::nullopt); // may destroy the session
        return true;
    }
    [[nodiscard]] std::size_t waiting() const { return m_waiting.size(); }
    [[nodiscard]] int openSessions() const { return m_openSessions; }

    bool available = true;
    std::vector<Call> calls;

private:
    class Session final : public LanguageModelSession {
    public:
        explicit Session(FakeLanguageModel& model) : m_model(model) { ++m_model.m_openSessions; }
        ~Session() override {
            --m_model.m_openSessions;
            std::erase(m_model.m_waiting, this);
        }
        Session(const Session&) = delete;
        Session& operator=(const Session&) = delete;
        void respond(const QString& prompt, Answer whenAnswered) override {
            m_model.calls.push_back({false, prompt});
            answered = std::move(whenAnswered);
            m_model.m_waiting.push_back(this);
        }
        Answer answered;

    private:
        FakeLanguageModel& m_model;
    };

    std::vector<Session*> m_waiting;
    int m_openSessions = 0;
};

} // namespace vantle::fakes
