// The cards' open questions, for surfaces that work by keyboard.
#pragma once

#include <QObject>
#include <QString>

#include <functional>
#include <utility>
#include <vector>

namespace vantle {

/// Cards float above other applications and do not take the keyboard, so a user who works by keys
/// or with a screen reader answers in the panel. One object, made by the launch code. Main thread.
class OpenQuestions final : public QObject {
    Q_OBJECT

public:
    /// A card's controller, known by its address; it must call close() before it goes.
    using Owner = const void*;

    struct Answer {
        QString text;
        QString help; ///< what the answer does; empty where its text says so
        std::function<void()> give;
        /// Whether the card needs the keyboard; the panel then returns the focus first.
        bool takesKeyboard = false;
    };
    struct Question {
        QString text;
        std::vector<Answer> answers;
        QString spoken = {}; ///< the announcement; empty where another text already announces it
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
    /// A card's text, to be spoken: no screen reader visits a card by itself.
    void said(const QString& text);

private:
    std::vector<std::pair<Owner, Question>> m_open;
};

} // namespace vantle
