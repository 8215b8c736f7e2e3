#include "Workshop.h"

#include "SampleLog.h"

#include <QDir>

#include <stdexcept>

namespace vantle::bench {

Workshop::Workshop(int count)
    : m_directory(QDir::currentPath() + QStringLiteral("/vantle-bench-XXXXXX"))
    , m_paths(m_files, m_directory.path())
    , m_preferences(m_files, m_directory.filePath(QStringLiteral("preferences.ini")))
    , m_skills(m_paths, m_queue, m_preferences)
    , m_tracker(
          {m_clock, m_scheduler, m_queue, m_paths, m_preferences, m_skills, m_notifications}) {
    if (!m_directory.isValid() || !m_paths.writeProtected(sampleLog(count), log()))
        throw std::runtime_error("can't make a directory to work in");
}

} // namespace vantle::bench
