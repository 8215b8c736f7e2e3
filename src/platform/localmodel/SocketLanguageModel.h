// The model of a server that the person runs on this machine, behind a UNIX socket.
//
// The socket is named by a file in the configuration directory; without that file there is no
// model, and nothing is done but the look for it whenever somebody asks. No other machine can be
// named, and no internet socket is ever opened. Main thread; files of at most 4 KB are read there.
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
    /// `settingsFile` is the path of "language-model.conf", `person` for whom a server has to run
    /// to be told anything. The others must outlive the model.
    SocketLanguageModel(FileSystem& files, QString settingsFile, Scheduler& scheduler,
                        uid_t person = ::geteuid())
        : m_files(files)
        , m_settingsFile(std::move(settingsFile))
        , m_scheduler(scheduler)
        , m_person(person) {}

    /// How long an answer may take: a model on a slow processor reads for a while before it writes.
    static constexpr Seconds patience{180};

    /// Whether the file names a socket of this person. Whether anybody answers there only an
    /// answer tells.
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
