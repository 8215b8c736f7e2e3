// The choice and the control of the ceremony over the screens.
#pragma once

#include "app/Collaborators.h"
#include "base/Scheduler.h"
#include "ceremony/WebStage.h"
#include "ceremony/show/CeremonyVariant.h"
#include "platform/OverlayStage.h"

#include <QObject>
#include <QSizeF>

#include <list>

namespace vantle {

class CeremonyFrameRenderer;
class Clock;
class Preferences;
class RandomSource;
class ReducedMotion;
class SerialQueue;

/// A show cannot get stuck: a hard stop removes all windows whatever a page, a screen or a slow
/// machine does, and callbacks with the number of an earlier show are ignored. Main thread;
/// expensive work runs on `prepQueue`.
class RippleOverlayController final : public QObject, public collaborators::Ripple {
    Q_OBJECT

public:
    static constexpr const char* prepQueueLabel = "local.vantle.ceremony-prep";

    /// Prepares the native show of one screen, on `prepQueue`.
    using Prepare = std::function<std::unique_ptr<CeremonyFrameRenderer>(
        CeremonyVariant, QSizeF, const std::optional<QString>& skillName)>;

    /// All of it must outlive the controller; `scheduler` must outlive the queue.
    struct Environment {
        const Clock& clock;
        Scheduler& scheduler;
        SerialQueue& prepQueue;
        Preferences& preferences;
        const ReducedMotion& reducedMotion;
        OverlayStage& stage;
        WebStage& web;
        RandomSource& random; ///< chooses the variants, on the main thread
        Prepare prepare;
    };

    explicit RippleOverlayController(Environment environment);

    /// Stops the running show and plays this one on every screen. Has no effect when the user has
    /// switched ceremonies off, or where a window over the screen would take presses.
    void play(CeremonyShow show, std::uint32_t hexRGB,
              const std::optional<QString>& skillName) override;

    /// Removes all windows. The hard stop stays armed and finds none.
    void dismiss();

    /// A page of show `generation` posted a message. Ignores invalid messages and earlier shows.
    void receive(int generation, const QJsonValue& body);

    /// Returns the time after `play`, or after a page has begun, at which all windows are removed.
    [[nodiscard]] static Seconds hardStopSeconds(CeremonyShow show);

    /// The ways to play a show. The first applicable one is taken; Nothing is the exception.
    enum class Path { Fade, Collapse, Web, Native, Nothing };
    [[nodiscard]] static Path pathOf(CeremonyShow show, bool reducedMotion, bool pageExists);

    /// Returns the index of a variant other than the last one (-1 for none), with equal
    /// probability, chosen by `uniform`.
    [[nodiscard]] static int pickIndex(int lastVariantIndex, double uniform);

    // State, for tests

    [[nodiscard]] Seconds hardStopCeiling() const { return m_hardStopCeiling; }
    [[nodiscard]] const std::vector<std::unique_ptr<OverlayWindow>>& windows() const {
        return m_windows;
    }
    [[nodiscard]] int generation() const { return m_generation; }
    [[nodiscard]] bool isHardStopPending() const { return m_hardStopWorkItem != nullptr; }
    [[nodiscard]] bool didRearmHardStop() const { return m_didRearmHardStop; }
    [[nodiscard]] int webViewCount() const { return m_webViewCount; }
    [[nodiscard]] int webDoneCount() const { return m_webDoneCount; }
    [[nodiscard]] int lastVariantIndex() const { return m_lastVariantIndex; }

private:
    struct Prepared;

    template <typename View>
    void playView(Date start, std::uint32_t accent);
    void playNative(CeremonyVariant variant, const std::optional<QString>& skillName, Date start);
    void showPrepared(std::vector<Prepared>& prepared, Date start);
    void playWebCeremony(CeremonyShow show, CeremonyVariant variant, std::uint32_t hexRGB,
                         const std::optional<QString>& skillName);

    [[nodiscard]] CeremonyVariant pickVariant();
    void armHardStop(int generation);
    void dismissLater(Seconds delay);

    const Environment m_env;
    Seconds m_hardStopCeiling{3.2};
    std::vector<std::unique_ptr<OverlayWindow>> m_windows;
    int m_generation = 0;
    TimerHandle m_hardStopWorkItem;
    bool m_didRearmHardStop = false; ///< the page's "started" was accepted
    int m_webViewCount = 0;
    int m_webDoneCount = 0;
    int m_lastVariantIndex = -1;
    std::list<TimerHandle> m_dismissals; ///< one for each view that has not ended
};

} // namespace vantle
