// A save dialog that the test answers.
#pragma once

#include "platform/SaveDialog.h"

#include <QPointer>
#include <QWindow>

#include <utility>
#include <vector>

namespace vantle::fakes {

class FakeSaveDialog final : public SaveDialog {
public:
    [[nodiscard]] std::unique_ptr<OpenSaveDialog> ask(const SaveQuestion& question, QWindow* above,
                                                      Answer answer) override {
        asked.push_back(question);
        auto shown = std::make_shared<Shown>(Shown{std::move(answer), above, above != nullptr});
        m_shown = shown;
        return std::make_unique<Open>(std::move(shown));
    }

    /// Whether the last dialog is open: not answered, closed or destroyed with its window.
    [[nodiscard]] bool isOpen() const {
        const auto shown = m_shown.lock();
        return shown && shown->answer && !(shown->hadWindow && !shown->window);
    }

    /// The user chooses a file or cancels. Has no effect without an open dialog.
    void choose(const std::optional<QString>& path) {
        if (!isOpen()) return;
        std::exchange(m_shown.lock()->answer, nullptr)(path); // may destroy the dialog
    }

    std::vector<SaveQuestion> asked;

private:
    struct Shown {
        Answer answer; ///< empty once given
        QPointer<QWindow> window;
        bool hadWindow = false;
    };
    struct Open final : OpenSaveDialog {
        explicit Open(std::shared_ptr<Shown> dialog) : shown(std::move(dialog)) {}
        const std::shared_ptr<Shown> shown;
    };

    std::weak_ptr<Shown> m_shown; ///< the last dialog, until closed
};

} // namespace vantle::fakes
