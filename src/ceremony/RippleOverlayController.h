// Decides what is played over the screens when a session starts or ends, and sees that it goes.
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

/// Nobody ever has to look at a stuck show: whatever a page, a screen or a slow machine does, a
/// hard stop takes all windows down, and every show has a number without which late callbacks do
/// nothing. Main thread only; what is heavy is made ready on `prepQueue`.
class RippleOverlayController final : public QObject, public collaborators::Ripple {
    Q_OBJECT

public:
    static constexpr const char* prepQueueLabel = "local.vantle.ceremony-prep";

    /// Makes the native show of one screen ready. Called on `prepQueue`.
    using Prepare = std::function<std::unique_ptr<CeremonyFrameRenderer>(
        CeremonyVariant, QSizeF, const std::optional<QString>& skillName)>;

    /// All of it must outlive the controller, and `scheduler` the queue.
    struct Environment {
        const Clock& clock;
        Scheduler& scheduler;
        SerialQueue& prepQueue;
        Preferences& preferences;
        const ReducedMotion& reducedMotion;
        OverlayStage& stage;
        WebStage& web;
        RandomSource& random; ///< chooses the variants; main thread
        Prepare prepare;
    };

    explicit RippleOverlayController(Environment environment);

    /// Cuts off what plays and plays this, over every screen. Nothing at all happens while the
    /// user has the ceremony switched off, nor where a window over the screen would swallow
    /// presses.
    void play(CeremonyShow show, std::uint32_t hexRGB,
              const std::optional<QString>& skillName) override;

    /// Takes all windows down. The hard stop stays armed, and finds nothing.
    void dismiss();

    /// A page of the show with that number posted a message. Garbage, and what comes from an
    /// earlier show, is ignored.
    void receive(int generation, const QJsonValue& body);

    /// How long after `play`, or after a page has begun, all windows go in any case.
    [[nodiscard]] static Seconds hardStopSeconds(CeremonyShow show);

    /// The ways of playing a show. The first that applies, from the top, but for the last.
    enum class Path { Fade, Collapse, Web, Native, Nothing };
    [[nodiscard]] static Path pathOf(CeremonyShow show, bool reducedMotion, bool pageExists);

    /// One of the variants but the last one played, all of them equally likely; `uniform` chooses.
    /// -1 stands for none played.
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
    bool m_didRearmHardStop = false; ///< the page's "started" has been honoured
    int m_webViewCount = 0;
    int m_webDoneCount = 0;
    int m_lastVariantIndex = -1;
    std::list<TimerHandle> m_dismissals; ///< of views, one for each show that is not past its end
};

} // namespace vantle
