#include "gallery/Scenes.h"
#include "surfaces/cards/CorrectionPromptModel.h"
#include "surfaces/cards/RecoveryNoticeModel.h"
#include "surfaces/cards/RetagToastController.h"
#include "surfaces/cards/RetagToastModel.h"
#include "surfaces/cards/StopSummaryModel.h"
#include "surfaces/cards/TagPromptModel.h"

#include <QQuickItem>

namespace vantle {

namespace {

using Content = collaborators::StopSummary::Content;

const Skill& skillNamed(const char* name) {
    for (const Skill& skill : Skill::defaults())
        if (skill.name == QLatin1String(name)) return skill;
    return Skill::defaults().front();
}

std::vector<Skill> allSkills() { return {Skill::defaults().begin(), Skill::defaults().end()}; }

/// `make` gives the view's model.
Scene scene(const char* name, const char* view, std::function<QObject*()> make,
            bool composited = true) {
    Scene made;
    made.name = QLatin1String(name);
    made.view = QUrl(QStringLiteral("qrc:/qt/qml/Vantle/Cards/%1.qml").arg(QLatin1String(view)));
    made.properties = [make = std::move(make), composited](QObject* owner) {
        QObject* const model = make();
        model->setParent(owner);
        return QVariantMap{{QStringLiteral("model"), QVariant::fromValue(model)},
                           {QStringLiteral("composited"), composited},
                           {QStringLiteral("up"), true}};
    };
    made.ground = kDesk;
    return made;
}

Content worked(std::int64_t seconds, std::int64_t newHours, std::int64_t carrySeconds) {
    Content content;
    content.session.activeSeconds = seconds;
    content.newHours = newHours;
    content.carrySeconds = carrySeconds;
    return content;
}

Scene summary(const char* name, const Content& content, const char* skill = "Build",
              bool composited = true) {
    Scene made = scene(
        name, "StopSummaryView",
        [content, skill] {
            return new StopSummaryModel(content, skillNamed(skill), DurationStyle::Natural);
        },
        composited);
    // Left alone: the keyboard is with another application.
    made.arrange = [](QQuickItem& view) { view.setFocus(false); };
    return made;
}

std::function<void(QQuickItem&)> typing(const QString& note) {
    return [note](QQuickItem& view) {
        view.property("model").value<StopSummaryModel*>()->inviteNote();
        view.setProperty("noteText", note);
    };
}

/// The light around the note's field as bright as it gets, which stands still here.
void light(QQuickItem& item) {
    if (QByteArrayView(item.metaObject()->className()).startsWith("InvitingGlow"))
        item.setProperty("glows", true);
    for (QQuickItem* child : item.childItems())
        light(*child);
}

QList<Scene> summaries() {
    Scene newHours = summary("stop-summary-new-hours", worked(8640, 2, 1440));
    newHours.arrange = typing(QStringLiteral("Webhook retries land in order"));
    newHours.twice = true;
    Content first = worked(42, 0, 42);
    first.isFirstSession = first.showHotkeyHint = first.spotlightNote = true;
    Scene firstSession = summary("stop-summary-first-session", first);
    firstSession.arrange = [](QQuickItem& view) {
        typing(QString())(view);
        light(view);
    };
    firstSession.twice = true;
    Scene nearLimit = summary("stop-summary-note-limit", worked(2280, 0, 2280), "Connections");
    nearLimit.arrange =
        typing(QStringLiteral("Wrote the letter to Ada again, shorter. ").repeated(11));
    Content hint = worked(1500, 0, 1500);
    hint.showHotkeyHint = true;
    return {newHours,
            summary("stop-summary-partial", worked(2280, 0, 2280), "Marketing"),
            firstSession,
            summary("stop-summary-one-hour", worked(5400, 1, 1800), "Founder Ops"),
            summary("stop-summary-many-hours", worked(108000, 30, 0), "Distribution"),
            summary("stop-summary-added", worked(0, 0, 0), "Design"),
            summary("stop-summary-hotkey-hint", hint),
            nearLimit,
            summary("stop-summary-plain-desktop", worked(2280, 0, 2280), "Marketing", false)};
}

Scene recovery(const char* name, std::int64_t seconds, const char* skill) {
    return scene(name, "RecoveryNoticeView", [seconds, skill] {
        Session session;
        session.activeSeconds = seconds;
        return new RecoveryNoticeModel(session, skillNamed(skill), DurationStyle::Natural);
    });
}

Scene question(const char* name, const char* app, bool isCounting, bool isBrowser) {
    return scene(name, "TagPromptView", [=] {
        return new TagPromptModel(QLatin1String(app), allSkills(), isCounting, isBrowser);
    });
}

Scene correction(const char* name, const char* app, const char* skill) {
    return scene(name, "CorrectionPromptView", [app, skill] {
        return new CorrectionPromptModel(QLatin1String(app), skillNamed(skill));
    });
}

Scene toast(const char* name, std::int64_t seconds, const char* skill) {
    return scene(name, "RetagToastView", [seconds, skill] {
        const Skill& saved = skillNamed(skill);
        return new RetagToastModel(savedTime(seconds, DurationStyle::Natural), saved.name,
                                   QColor::fromRgb(saved.hexRGB));
    });
}

} // namespace

QList<Scene> cardScenes() {
    Scene notice = recovery("recovery-card", 4020, "Design");
    notice.twice = true;
    Scene unknown = question("tag-prompt-unknown", "Blender", true, false);
    unknown.twice = true;
    return summaries() +
           QList<Scene>{notice,
                        unknown,
                        question("tag-prompt-idle", "Blender", false, false),
                        question("tag-prompt-browser", "Firefox", true, true),
                        question("tag-prompt-long-name", "Visual Paradigm Community Edition 17",
                                 false, false),
                        correction("correction-prompt", "Blender", "Design"),
                        correction("correction-prompt-long-name",
                                   "Visual Paradigm Community Edition", "Distribution"),
                        toast("retag-toast", 1440, "Build"),
                        toast("retag-toast-hours", 8100, "Founder Ops")};
}

} // namespace vantle
