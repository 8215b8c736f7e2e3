#include "Workshop.h"

#include "SampleLog.h"

#include <QDir>

#include <stdexcept>
#include <utility>

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

std::unique_ptr<AppModel> Workshop::makeModel(std::function<Calendar()> calendar) {
    return std::make_unique<AppModel>(AppModel::Environment{.clock = m_clock,
                                                            .scheduler = m_scheduler,
                                                            .ioQueue = m_queue,
                                                            .paths = m_paths,
                                                            .preferences = m_preferences,
                                                            .skills = m_skills,
                                                            .notifications = m_notifications,
                                                            .idleSource = m_idleSource,
                                                            .screenPower = m_screenPower,
                                                            .hotKeyPort = m_hotKeyPort,
                                                            .reducedMotion = m_reducedMotion,
                                                            .cardSlot = m_cardSlot,
                                                            .autoSkill = m_autoSkill,
                                                            .focusLink = m_focusLink,
                                                            .frontmostApp = m_frontmost,
                                                            .calendar = std::move(calendar)},
                                      Collaborators());
}

} // namespace vantle::bench
