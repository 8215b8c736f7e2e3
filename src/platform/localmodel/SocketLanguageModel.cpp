#include "platform/localmodel/SocketLanguageModel.h"

#include "platform/FileSystem.h"
#include "platform/localmodel/ChatFormat.h"
#include "platform/localmodel/SocketExchange.h"

#include <utility>
#include <vector>

namespace vantle {

namespace {

constexpr int kOk = 200;

class Conversation final : public LanguageModelSession {
public:
    Conversation(const QString& instructions, std::optional<LocalModelSettings> settings,
                 uid_t person, Scheduler& scheduler, QObject& sockets)
        : m_settings(std::move(settings))
        , m_person(person)
        , m_scheduler(scheduler)
        , m_sockets(sockets)
        , m_messages{{chatformat::Role::System, instructions}} {}

    void respond(const QString& prompt, Answer answered) override {
        m_answered = std::move(answered);
        m_messages.push_back({chatformat::Role::User, prompt});
        if (!m_settings) {
            m_later = m_scheduler.scheduleOnce(Seconds(0), [this] { take(std::nullopt); });
            return;
        }
        m_exchange = std::make_unique<SocketExchange>(
            SocketExchange::Request{m_settings->socket, m_person,
                                    chatformat::request(m_settings->model, m_messages),
                                    SocketLanguageModel::patience},
            m_scheduler, m_sockets,
            [this](const std::optional<HttpResponse>& response) { take(response); });
    }

private:
    void take(const std::optional<HttpResponse>& response) {
        std::optional<QString> text;
        if (response && response->status() == kOk) text = chatformat::answer(response->body());
        if (text)
            m_messages.push_back({chatformat::Role::Assistant, *text});
        else
            m_messages.pop_back(); // as if it had not been asked
        const Answer answered = std::exchange(m_answered, {});
        answered(std::move(text)); // may ask again, or end this
    }

    const std::optional<LocalModelSettings> m_settings;
    const uid_t m_person;
    Scheduler& m_scheduler;
    QObject& m_sockets;
    std::vector<chatformat::Message> m_messages;
    Answer m_answered;
    std::unique_ptr<SocketExchange> m_exchange;
    TimerHandle m_later;
};

/// Returns the file's content, at most one byte more than allowed; empty when unreadable.
QByteArray contentOf(FileSystem& files, const QString& path) {
    const auto file = files.open(path, FileSystem::OpenMode::Read);
    if (!file) return {};
    QByteArray content(LocalModelSettings::maxFileSize + 1, Qt::Uninitialized);
    qint64 length = 0;
    while (length < content.size()) {
        const auto count = file.value()->read(content.data() + length, content.size() - length);
        if (!count) return {};
        if (count.value() == 0) break;
        length += count.value();
    }
    return content.first(length);
}

} // namespace

std::optional<LocalModelSettings> SocketLanguageModel::settings() const {
    auto settings = LocalModelSettings::parse(contentOf(m_files, m_settingsFile));
    if (settings && !isSocketOf(m_person, settings->socket)) return std::nullopt;
    return settings;
}

std::unique_ptr<LanguageModelSession>
SocketLanguageModel::openSession(const QString& instructions) {
    return std::make_unique<Conversation>(instructions, settings(), m_person, m_scheduler,
                                          m_sockets);
}

} // namespace vantle
