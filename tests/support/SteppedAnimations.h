// Animations that advance only on request.
#pragma once

#include <QAnimationDriver>
#include <QCoreApplication>
#include <QVariantAnimation>

#include <algorithm>

namespace vantle::tests {

/// Drives all animations of the thread during its lifetime. Times in milliseconds.
class SteppedAnimations final : public QAnimationDriver {
public:
    SteppedAnimations() {
        install();
        m_pacemaker.setDuration(1000);
        m_pacemaker.setLoopCount(-1);
        m_pacemaker.start();
    }
    ~SteppedAnimations() override {
        m_pacemaker.stop();
        uninstall();
    }

    /// Advances the animations by that time, frame by frame.
    void pass(int milliseconds) {
        constexpr int kFrame = 10;
        QCoreApplication::processEvents(); // animations start in the next turn of the event loop
        for (int left = milliseconds; left > 0; left -= kFrame) {
            m_elapsed += std::min(left, kFrame);
            if (isRunning()) advanceAnimation();
            QCoreApplication::processEvents();
        }
    }

    [[nodiscard]] qint64 elapsed() const override { return m_elapsed - m_startedAt; }

protected:
    void start() override {
        m_startedAt = m_elapsed;
        QAnimationDriver::start();
    }

private:
    /// Without a running animation Qt would use the real clock.
    QVariantAnimation m_pacemaker;
    qint64 m_elapsed = 0;
    qint64 m_startedAt = 0;
};

} // namespace vantle::tests
