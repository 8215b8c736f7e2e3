// The export and erase part of the settings model.
#include "app/AppModel.h"
#include "base/SerialQueue.h"
#include "base/Words.h"
#include "platform/FileSystem.h"
#include "surfaces/settings/SettingsView.h"
#include "tracking/AppPaths.h"

namespace vantle {

Result<> SettingsView::ensureLog() const {
    return m_env.ioQueue.run([this]() -> Result<> {
        const QString log = m_env.paths.sessionsFile();
        if (m_env.paths.fileSystem().exists(log)) return {};
        return m_env.paths.writeProtected({}, log);
    });
}

void SettingsView::exportData() {
    const Result<> there = ensureLog();
    m_exportFailed = !there;
    m_exportFeedback = there ? Words::tr("Revealed in Finder")
                             : Words::tr("Couldn't export: %1").arg(there.error().description());
    Q_EMIT exportChanged();
    if (there) m_env.reveal(m_env.paths.sessionsFile());
}

void SettingsView::setConfirmingErase(bool confirming) {
    m_confirmingErase = confirming;
    Q_EMIT eraseChanged();
}

void SettingsView::confirmErase() {
    if (!m_confirmingErase) return;
    m_confirmingErase = false;
    const auto failure = m_env.eraseAllData();
    m_eraseSucceeded = !failure;
    m_eraseStatus = failure.value_or(Words::tr("Erased all local Vantle data."));
    // The exported data is erased too.
    m_exportFailed = false;
    m_exportFeedback.reset();
    readState();
    Q_EMIT exportChanged();
    Q_EMIT eraseChanged();
}

} // namespace vantle
