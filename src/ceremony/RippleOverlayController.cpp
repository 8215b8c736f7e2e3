#include "ceremony/RippleOverlayController.h"

#include "base/Clock.h"
#include "base/Heap.h"
#include "base/RandomSource.h"
#include "base/SerialQueue.h"
#include "ceremony/CeremonyLayerView.h"
#include "ceremony/CeremonyPage.h"
#include "ceremony/CollapseRippleView.h"
#include "ceremony/ReducedMotionFadeView.h"
#include "ceremony/show/CeremonyFrameRenderer.h"
#include "platform/Preferences.h"
#include "platform/ReducedMotion.h"
#include "tracking/Settings.h"

#include <QPointer>

#include <algorithm>
#include <utility>

namespace vantle {

namespace {

/// How long the windows outlive the last frame.
constexpr Seconds kAfterView{0.25};

constexpr int kVariantCount = static_cast<int>(ceremonyvariant::all.size());

} // namespace

/// The result of `prepQueue` for one screen.
struct RippleOverlayController::Prepared {
    QRect frame;
    std::unique_ptr<CeremonyFrameRenderer> renderer;
};

RippleOverlayController::RippleOverlayController(Environment environment)
    : m_env(std::move(environment)) {
    // Reduced motion ends a running show; the next one is the fade.
    connect(&m_env.reducedMotion, &ReducedMotion::changed, this, [this] {
        if (m_env.reducedMotion.enabled()) dismiss();
    });
}

Seconds RippleOverlayController::hardStopSeconds(CeremonyShow show) {
    switch (show.kind) {
    case CeremonyShow::Milestone:
        return Seconds(3.4);
    case CeremonyShow::Quick:
        return Seconds(1.5);
    case CeremonyShow::Full:
    case CeremonyShow::Collapse:
        break;
    }
    return Seconds(3.2);
}

RippleOverlayController::Path RippleOverlayController::pathOf(CeremonyShow show, bool reducedMotion,
                                                              bool pageExists) {
    if (reducedMotion) return Path::Fade;
    if (show.kind == CeremonyShow::Collapse) return Path::Collapse;
    if (pageExists) return Path::Web;
    return show.kind == CeremonyShow::Full ? Path::Native : Path::Nothing;
}

int RippleOverlayController::pickIndex(int lastVariantIndex, double uniform) {
    const bool excludesOne = lastVariantIndex >= 0 && lastVariantIndex < kVariantCount;
    const int candidates = excludesOne ? kVariantCount - 1 : kVariantCount;
    const int choice = std::min(static_cast<int>(uniform * candidates), candidates - 1);
    return excludesOne && choice >= lastVariantIndex ? choice + 1 : choice;
}

CeremonyVariant RippleOverlayController::pickVariant() {
    m_lastVariantIndex = pickIndex(m_lastVariantIndex, m_env.random.uniform());
    return ceremonyvariant::all.at(static_cast<std::size_t>(m_lastVariantIndex));
}

void RippleOverlayController::play(CeremonyShow show, std::uint32_t hexRGB,
                                   const std::optional<QString>& skillName) {
    if (settings::rippleDisabled.read(m_env.preferences) || !m_env.stage.isAvailable()) return;
    dismiss();
    ++m_generation;
    const Date start = m_env.clock.now();
    m_hardStopCeiling = hardStopSeconds(show);
    m_didRearmHardStop = false;
    armHardStop(m_generation);
    switch (pathOf(show, m_env.reducedMotion.enabled(), m_env.web.hasPage())) {
    case Path::Fade:
        return playView<ReducedMotionFadeView>(start, hexRGB);
    case Path::Collapse:
        return playView<CollapseRippleView>(start, hexRGB);
    case Path::Web: {
        const bool picks = show.kind == CeremonyShow::Full;
        const CeremonyVariant variant = picks ? pickVariant() : CeremonyVariant::Nova;
        return playWebCeremony(show, variant, hexRGB, skillName);
    }
    case Path::Native:
        return playNative(pickVariant(), skillName, start);
    case Path::Nothing:
        return;
    }
}

void RippleOverlayController::dismiss() {
    // Emptied first: a window may report something during its destruction.
    const auto windows = std::exchange(m_windows, {});
    // malloc keeps what windows and views freed between other blocks, until trimmed.
    if (!windows.empty()) m_env.scheduler.post(&trimHeap);
}

template <typename View>
void RippleOverlayController::playView(Date start, std::uint32_t accent) {
    for (const QRect& frame : m_env.stage.frames())
        m_windows.push_back(m_env.stage.putUp(frame, std::make_unique<View>(start, accent)));
    dismissLater(View::duration + kAfterView);
}

void RippleOverlayController::playNative(CeremonyVariant variant,
                                         const std::optional<QString>& skillName, Date start) {
    m_env.prepQueue.async([prepare = m_env.prepare, &scheduler = m_env.scheduler,
                           frames = m_env.stage.frames(), variant, skillName, start,
                           generation = m_generation, self = QPointer(this)] {
        // shared_ptr, since posted work must be copyable.
        const auto prepared = std::make_shared<std::vector<Prepared>>();
        for (const QRect& frame : frames)
            prepared->push_back({frame, prepare(variant, frame.size(), skillName)});
        scheduler.post([self, prepared, start, generation] {
            if (self && self->m_generation == generation) self->showPrepared(*prepared, start);
        });
    });
}

void RippleOverlayController::showPrepared(std::vector<Prepared>& prepared, Date start) {
    const std::vector<QRect> frames = m_env.stage.frames();
    for (Prepared& screen : prepared) {
        // The screen was unplugged in the meantime.
        if (std::ranges::find(frames, screen.frame) == frames.end()) continue;
        m_windows.push_back(m_env.stage.putUp(
            screen.frame, std::make_unique<CeremonyLayerView>(start, std::move(screen.renderer))));
    }
}

void RippleOverlayController::playWebCeremony(CeremonyShow show, CeremonyVariant variant,
                                              std::uint32_t hexRGB,
                                              const std::optional<QString>& skillName) {
    m_webViewCount = 0;
    m_webDoneCount = 0;
    const bool blackout = settings::ceremonyBlackout.read(m_env.preferences);
    const QString script = ceremonypage::script(
        ceremonypage::configuration(show, variant, hexRGB, skillName, blackout));
    for (const QRect& frame : m_env.web.frames()) {
        m_windows.push_back(m_env.web.putUp(
            frame, script,
            [self = QPointer(this), generation = m_generation](const QJsonValue& body) {
                if (self) self->receive(generation, body);
            }));
        ++m_webViewCount;
    }
}

void RippleOverlayController::receive(int generation, const QJsonValue& body) {
    if (generation != m_generation) return;
    switch (ceremonypage::messageOf(body)) {
    case ceremonypage::Message::Started:
        // A page can extend the hard stop only once.
        if (std::exchange(m_didRearmHardStop, true)) return;
        return armHardStop(generation);
    case ceremonypage::Message::Done:
        if (++m_webDoneCount == m_webViewCount) dismiss();
        return;
    case ceremonypage::Message::None:
        return;
    }
}

void RippleOverlayController::armHardStop(int generation) {
    m_hardStopWorkItem = m_env.scheduler.scheduleOnce(m_hardStopCeiling, [this, generation] {
        const TimerHandle spent = std::move(m_hardStopWorkItem);
        if (generation == m_generation) dismiss();
    });
}

void RippleOverlayController::dismissLater(Seconds delay) {
    m_dismissals.emplace_back();
    const auto place = std::prev(m_dismissals.end());
    *place = m_env.scheduler.scheduleOnce(delay, [this, place, generation = m_generation] {
        const TimerHandle spent = std::move(*place);
        m_dismissals.erase(place);
        if (generation == m_generation) dismiss();
    });
}

} // namespace vantle
