// The language model of a server that the user runs.
//
// A file in the configuration directory names the server's UNIX socket; without it there is no
// model, and each query only looks for the file. Other machines and internet sockets are
// impossible. Main thread; reads files of at most 4 KB there.
#pragma once

#include "base/Scheduler.h"
#include "platform/LanguageModel.h"
#include "platform/localmodel/LocalModelSettings.h"

#include <QObject>
#include <QString>

#include <memory>
#include <optional>
#include <unistd.h>

namespace vantle {

class FileSystem;

class SocketLanguageModel final : public LanguageModel {
public:
    /// `settingsFile` is the path of "language-model.conf"; `person` is the user that a server must
    /// run for. The others must outlive the model.
    SocketLanguageModel(FileSystem& files, QString settingsFile, Scheduler& scheduler,
                        uid_t person = ::geteuid())
        : m_files(files)
        , m_settingsFile(std::move(settingsFile))
        , m_scheduler(scheduler)
        , m_person(person) {}

    /// The time limit of an answer: on a slow processor a model reads for a while before it writes.
    static constexpr Seconds patience{180};

    /// Whether the file names the user's own socket. Only an answer shows whether a server listens.
    [[nodiscard]] bool isAvailable() const override { return settings().has_value(); }

    [[nodiscard]] std::unique_ptr<LanguageModelSession>
    openSession(const QString& instructions) override;

private:
    [[nodiscard]] std::optional<LocalModelSettings> settings() const;

    FileSystem& m_files;
    const QString m_settingsFile;
    Scheduler& m_scheduler;
    const uid_t m_person;
    QObject m_sockets; ///< owns those that are hung up
};

} // namespace vantle
