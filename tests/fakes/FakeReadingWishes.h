// The user's text settings, set by the test.
#pragma once

#include "platform/ReadingWishes.h"

namespace vantle::fakes {

class FakeReadingWishes final : public ReadingWishes {
public:
    [[nodiscard]] bool moreContrast() const override { return m_moreContrast; }
    [[nodiscard]] double textScale() const override { return m_textScale; }

    /// The user changes a setting at run time.
    void setMoreContrast(bool more) {
        m_moreContrast = more;
        Q_EMIT changed();
    }
    void setTextScale(double factor) {
        m_textScale = factor;
        Q_EMIT changed();
    }

private:
    bool m_moreContrast = false;
    double m_textScale = 1.0;
};

} // namespace vantle::fakes
