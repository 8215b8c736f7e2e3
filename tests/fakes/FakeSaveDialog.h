// A save dialog that a test answers.
#pragma once

#include "platform/SaveDialog.h"

#include <utility>
#include <vector>

namespace vantle::fakes {

class FakeSaveDialog final : public SaveDialog {
public:
    [[nodiscard]] std::unique_ptr<OpenSaveDialog> ask(const SaveQuestion& question, QWindow* above,
                                                      Answer answer) override {
        asked.push_back(question);
        window = above;
        m_answer = std::move(answer);
        ++m_open;
        return std::make_unique<Open>(*this);
    }

    /// Whether a dialog is on the screen.
    [[nodiscard]] bool isOpen() const { return m_open > 0; }

    /// The person chooses a file, or turns away.
    void choose(const std::optional<QString>& path) { std::exchange(m_answer, nullptr)(path); }

    std::vector<SaveQuestion> asked;
    QWindow* window = nullptr; ///< below the last one

private:
    struct Open final : OpenSaveDialog {
        explicit Open(FakeSaveDialog& owner) : dialog(owner) {}
        ~Open() override { --dialog.m_open; }
        Open(const Open&) = delete;
        Open& operator=(const Open&) = delete;
        FakeSaveDialog& dialog;
    };

    Answer m_answer;
    int m_open = 0;
};

} // namespace vantle::fakes
