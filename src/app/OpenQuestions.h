// What the cards ask at the moment, for surfaces that can be worked by keys.
#pragma once

#include <QObject>
#include <QString>

#include <functional>
#include <utility>
#include <vector>

namespace vantle {

/// Cards float above other applications and never take the keyboard by themselves, so a user who
/// works by keys or hears the screen answers in the panel. Made once by the launch code. Main
/// thread.
class OpenQuestions final : public QObject {
    Q_OBJECT

public:
    /// A card's controller, known by its address; it must call close() before it goes.
    using Owner = const void*;

    struct Answer {
        QString text;
        QString help; ///< what it does; empty where the text says it
        std::function<void()> give;
        bool takesKeyboard = false; ///< for the card; the panel gives the keyboard back first
    };
    struct Question {
        QString text;
        std::vector<Answer> answers;
        QString spoken = {}; ///< as it is asked; empty where something else tells of it
    };

    /// Replaces the owner's earlier question.
    void ask(Owner owner, Question question) {
        std::erase_if(m_open, [owner](const auto& one) { return one.first == owner; });
        const QString spoken = question.spoken;
        m_open.emplace_back(owner, std::move(question));
        Q_EMIT changed();
        if (!spoken.isEmpty()) Q_EMIT said(spoken);
    }
    void close(Owner owner) {
        if (std::erase_if(m_open, [owner](const auto& one) { return one.first == owner; }) > 0)
            Q_EMIT changed();
    }

    /// In the order in which they were asked.
    [[nodiscard]] const std::vector<std::pair<Owner, Question>>& all() const { return m_open; }

Q_SIGNALS:
    void changed();
    /// What a card says is to be spoken, since no reader looks at a card by itself.
    void said(const QString& text);

private:
    std::vector<std::pair<Owner, Question>> m_open;
};

} // namespace vantle
