#include "surfaces/window/ForegroundActivation.h"

namespace vantle {

void ForegroundActivation::windowAppeared() {
    if (++m_openWindows == 1) Q_EMIT regularChanged();
}

void ForegroundActivation::windowDisappeared() {
    if (m_openWindows == 0) return;
    if (--m_openWindows == 0) Q_EMIT regularChanged();
}

} // namespace vantle
