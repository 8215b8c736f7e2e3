#include "app/ActionNote.h"

#include "tracking/TrackerCore.h"

#include <utility>

namespace vantle {

void ActionNote::report(const QString& text) { set(m_tracker.storageError().value_or(text)); }

void ActionNote::set(std::optional<QString> text) {
    if (m_text == text) return;
    m_text = std::move(text);
    Q_EMIT changed();
}

} // namespace vantle
