#include "sensing/ScreenPowerUnion.h"

namespace vantle {

ScreenPowerUnion::ScreenPowerUnion(std::vector<std::unique_ptr<ScreenPower>> sources)
    : m_sources(std::move(sources)) {
    for (unsigned cause = 0; cause < m_sources.size(); ++cause) {
        ScreenPower* const source = m_sources[cause].get();
        setCause(cause, source->asleep());
        connect(source, &ScreenPower::slept, this, [this, cause] { setCause(cause, true); });
        connect(source, &ScreenPower::woke, this, [this, cause] { setCause(cause, false); });
    }
}

} // namespace vantle
