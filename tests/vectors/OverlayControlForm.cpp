// overlay_control: what is played over the screens, on virtual time, and when it goes.
#include "ceremony/CeremonyWorld.h"
#include "fakes/VirtualTime.h"
#include "tracking/Settings.h"
#include "vectors/Script.h"
#include "vectors/forms.h"

namespace vantle::vectors {
namespace {

using tests::ShownWindow;

CeremonyShow showFromText(const QString& text) {
    if (text == QLatin1String("milestone")) return CeremonyShow::milestone(100);
    if (text == QLatin1String("quick")) return CeremonyShow::Quick;
    return text == QLatin1String("collapse") ? CeremonyShow::Collapse : CeremonyShow::Full;
}

QString pathName(RippleOverlayController::Path path) {
    switch (path) {
    case RippleOverlayController::Path::Fade:
        return QStringLiteral("fade");
    case RippleOverlayController::Path::Collapse:
        return QStringLiteral("collapse");
    case RippleOverlayController::Path::Web:
        return QStringLiteral("web");
    case RippleOverlayController::Path::Native:
        return QStringLiteral("native");
    case RippleOverlayController::Path::Nothing:
        return QStringLiteral("nothing");
    }
    return {};
}

/// Runs each job for a given time, one after the other, and says so after what it posted has run.
class TimedQueue final : public SerialQueue {
public:
    TimedQueue(fakes::VirtualTime& time, Seconds each) : m_time(time), m_each(each) {}

    void async(std::function<void()> job) override {
        const Seconds now(m_time.timerClock());
        m_freeAt = std::max(m_freeAt, now) + m_each;
        m_jobs.push_back(
            m_time.scheduleOnce(m_freeAt - now, [this, job = std::move(job), done = onQueued()] {
                job();
                m_time.settle();
                done();
            }));
    }
    void sync(const std::function<void()>& job) override { job(); }

    /// Called for each job that comes; what it gives is called when the job is done.
    std::function<std::function<void()>()> onQueued;

private:
    fakes::VirtualTime& m_time;
    const Seconds m_each;
    Seconds m_freeAt{0};
    std::vector<TimerHandle> m_jobs;
};

/// Virtual time that tells of each delayed work when it has run.
class TellingScheduler final : public Scheduler {
public:
    explicit TellingScheduler(fakes::VirtualTime& time) : m_time(time) {}

    TimerHandle scheduleRepeatingTimer(Seconds every, Seconds tolerance,
                                       std::function<void()> work) override {
        return m_time.scheduleRepeatingTimer(every, tolerance, std::move(work));
    }
    TimerHandle scheduleOnce(Seconds delay, std::function<void()> work) override {
        return m_time.scheduleOnce(delay, [work = std::move(work), done = onScheduled(delay)] {
            work();
            done();
        });
    }
    void post(std::function<void()> work) override { m_time.post(std::move(work)); }

    /// Called for each work that comes; what it gives is called when the work is done.
    std::function<std::function<void()>(Seconds)> onScheduled;

private:
    fakes::VirtualTime& m_time;
};

/// A whole story of shows; its trace has an entry for everything that happens.
class Simulation {
public:
    explicit Simulation(const QJsonObject& input)
        : m_queue(m_time, Seconds(input[QLatin1String("prepSeconds")].toDouble())) {
        m_queue.onQueued = [this] { return noteLater(QStringLiteral("prep")); };
        m_scheduler.onScheduled = [this](Seconds delay) { return noteScheduled(delay); };
        for (const QJsonValue number : input[QLatin1String("picks")].toArray())
            m_world.random.numbers.push_back(number.toDouble());
        set(input);
    }

    [[nodiscard]] QJsonArray play(const QJsonArray& events) {
        std::vector<TimerHandle> timers;
        for (const QJsonValue value : events) {
            const QJsonObject event = value.toObject();
            const Seconds at(event[QLatin1String("at")].toDouble());
            timers.push_back(m_time.scheduleOnce(at, [this, event] {
                perform(event);
                note(operation(event));
            }));
        }
        while (m_time.timerCount() > 0)
            m_time.advance(1.0);
        return m_trace;
    }

private:
    void perform(const QJsonObject& event) {
        const QString op = operation(event);
        RippleOverlayController& controller = m_world.controller;
        if (op == QLatin1String("play")) {
            controller.play(showFromText(event[QLatin1String("show")].toString()), 0x7A78FF,
                            QStringLiteral("Writing"));
        } else if (op == QLatin1String("dismiss")) {
            controller.dismiss();
        } else if (op == QLatin1String("set")) {
            set(event[QLatin1String("values")].toObject());
        } else if (op == QLatin1String("message")) {
            controller.receive(event[QLatin1String("generation")].toInt(),
                               event[QLatin1String("body")]);
        }
    }

    void set(const QJsonObject& values) {
        for (auto value = values.begin(); value != values.end(); ++value) {
            if (value.key() == QLatin1String("disabled"))
                settings::rippleDisabled.write(m_world.preferences, value->toBool());
            else if (value.key() == QLatin1String("reducedMotion"))
                m_world.reducedMotion.isOn = value->toBool();
            else if (value.key() == QLatin1String("pageExists"))
                m_world.web.pageExists = value->toBool();
            else if (value.key() == QLatin1String("screens"))
                setScreens(value->toArray());
        }
    }

    void setScreens(const QJsonArray& frames) {
        m_world.screens.shapes.clear();
        for (const QJsonValue value : frames) {
            const QJsonArray frame = value.toArray();
            const QRectF rect(frame[0].toDouble(), frame[1].toDouble(), frame[2].toDouble(),
                              frame[3].toDouble());
            m_world.screens.shapes.push_back({.frame = rect, .available = rect});
        }
    }

    std::function<void()> noteScheduled(Seconds delay) {
        const bool isOfView = delay == Seconds(0.85) || delay == Seconds(1.15);
        if (isOfView) return noteLater(QStringLiteral("viewClosure"));
        m_hardStopDue = m_time.timerClock() + delay.count();
        return [this] { note(QStringLiteral("hardStop")); };
    }

    /// What is noted when a work of the show that plays now is done.
    std::function<void()> noteLater(const QString& what) {
        return [this, what, generation = m_world.controller.generation()] {
            const bool isStale = generation != m_world.controller.generation();
            const QString fresh =
                what == QLatin1String("prep") ? what + QStringLiteral("Done") : what;
            note(isStale ? what + QStringLiteral("Stale") : fresh);
        };
    }

    void note(const QString& what) {
        m_trace << QJsonObject{{QStringLiteral("at"), m_time.timerClock()},
                               {QStringLiteral("what"), what},
                               {QStringLiteral("state"), state()}};
    }

    [[nodiscard]] QJsonObject state() const {
        const RippleOverlayController& controller = m_world.controller;
        return {
            {QStringLiteral("generation"), controller.generation()},
            {QStringLiteral("hardStopCeiling"), controller.hardStopCeiling().count()},
            {QStringLiteral("didRearmHardStop"), controller.didRearmHardStop()},
            {QStringLiteral("webViewCount"), controller.webViewCount()},
            {QStringLiteral("webDoneCount"), controller.webDoneCount()},
            {QStringLiteral("lastVariantIndex"), controller.lastVariantIndex()},
            {QStringLiteral("windows"), describedWindows()},
            {QStringLiteral("hardStopDue"), controller.isHardStopPending()
                                                ? QJsonValue(m_hardStopDue)
                                                : QJsonValue(QJsonValue::Null)},
        };
    }

    [[nodiscard]] QJsonArray describedWindows() const {
        QJsonArray windows;
        for (const ShownWindow& window : m_world.windows.all()) {
            static const QString names[] = {QStringLiteral("fade"), QStringLiteral("collapse"),
                                            QStringLiteral("native"), QStringLiteral("web")};
            const QRect& frame = window.frame;
            QJsonObject described{
                {QStringLiteral("kind"), names[static_cast<int>(window.kind)]},
                {QStringLiteral("frame"),
                 QJsonArray{frame.x(), frame.y(), frame.width(), frame.height()}}};
            const QString variant = variantOf(window);
            if (!variant.isEmpty()) described[QLatin1String("variant")] = variant;
            windows << described;
        }
        return windows;
    }

    [[nodiscard]] static QString variantOf(const ShownWindow& window) {
        if (window.variant) return ceremonyvariant::name(*window.variant);
        // Of a page: what its configuration says.
        for (const CeremonyVariant variant : ceremonyvariant::all) {
            const QString name = ceremonyvariant::name(variant);
            if (window.script.contains(QStringLiteral("\"variant\":\"%1\"").arg(name))) return name;
        }
        return {};
    }

    QJsonArray m_trace;
    double m_hardStopDue = 0;
    fakes::VirtualTime m_time{dateFromEpoch(0)};
    TellingScheduler m_scheduler{m_time};
    TimedQueue m_queue;
    tests::CeremonyWorld m_world{m_time, m_scheduler, m_queue};
};

QJsonValue path(const QJsonObject& input) {
    const CeremonyShow show = showFromText(input[QLatin1String("show")].toString());
    const auto path =
        RippleOverlayController::pathOf(show, input[QLatin1String("reducedMotion")].toBool(),
                                        input[QLatin1String("pageExists")].toBool());
    const bool disabled = input[QLatin1String("disabled")].toBool();
    return QJsonObject{
        {QStringLiteral("path"), disabled ? QStringLiteral("none-disabled") : pathName(path)},
        {QStringLiteral("hardStopSeconds"),
         RippleOverlayController::hardStopSeconds(show).count()}};
}

QJsonValue pick(const QJsonObject& input) {
    return QJsonObject{
        {QStringLiteral("index"),
         RippleOverlayController::pickIndex(input[QLatin1String("lastVariantIndex")].toInt(),
                                            input[QLatin1String("u")].toDouble())}};
}

QJsonValue ring(QSizeF size, Seconds t) {
    const auto ring = CollapseRippleView::ringAt(size, t);
    if (!ring) return QJsonValue::Null;
    return QJsonObject{{QStringLiteral("radius"), ring->radius},
                       {QStringLiteral("lineWidth"), ring->lineWidth},
                       {QStringLiteral("opacity"), ring->opacity},
                       {QStringLiteral("drawn"), ring->isDrawn()}};
}

QJsonValue fade(Seconds t) {
    const auto frame = ReducedMotionFadeView::frameAt(t);
    if (!frame) return QJsonValue::Null;
    return QJsonObject{{QStringLiteral("black"), frame->black},
                       {QStringLiteral("centre"), frame->centre},
                       {QStringLiteral("radius"), frame->radius}};
}

QJsonValue answer(const Case& item) {
    const QJsonObject& input = item.input;
    if (item.kind == QLatin1String("path")) return path(input);
    if (item.kind == QLatin1String("pick")) return pick(input);
    if (item.kind == QLatin1String("sim"))
        return Simulation(input).play(input[QLatin1String("events")].toArray());
    const QSizeF size(input[QLatin1String("width")].toDouble(),
                      input[QLatin1String("height")].toDouble());
    QJsonArray frames;
    for (const QJsonValue moment : input[QLatin1String("e")].toArray()) {
        const Seconds t(moment.toDouble());
        frames << (item.kind == QLatin1String("fade") ? fade(t) : ring(size, t));
    }
    return frames;
}

} // namespace

Form overlayControlForm() {
    Form form;
    form.name = QStringLiteral("overlay_control");
    form.answer = answer;
    // Times of a trace are small, and sums of decimal fractions.
    form.comparison.absoluteTolerance = 1e-9;
    return form;
}

} // namespace vantle::vectors
