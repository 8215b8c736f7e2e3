// The settings table: rows, texts, preferences.
#include "base/Words.h"
#include "surfaces/settings/DesktopGaps.h"
#include "surfaces/settings/PreferenceRowModel.h"
#include "tracking/DashFormat.h"
#include "tracking/Settings.h"

namespace vantle {

namespace {

constexpr double kSecondsPerMinute = 60;

using Entry = PreferenceRowModel::Entry;
using OnOff = PreferenceRowModel::OnOff;
using Range = PreferenceRowModel::Range;

QList<Entry> focusRows() {
    return {
        {.section = PreferenceRowModel::Focus,
         .kind = PreferenceRowModel::Slider,
         .setting = Range{settings::idleThresholdSeconds, kSecondsPerMinute, 1, 10, 1},
         .title = QT_TRANSLATE_N_NOOP("Words", "Auto-pause after %n min"),
         .caption = QT_TRANSLATE_N_NOOP(
             "Words", "No input for %n minutes pauses the clock, backdated to your last keystroke "
                      "or click so away time is never counted. Default is 3."),
         .captionOfOne = QT_TRANSLATE_NOOP(
             "Words", "No input for 1 minute pauses the clock, backdated to your last keystroke or "
                      "click so away time is never counted. Default is 3."),
         .gap = &DesktopGaps::idleAdvice,
         .gapReplacesCaption = true},
        {.section = PreferenceRowModel::Focus,
         .kind = PreferenceRowModel::Switch,
         .setting = OnOff{settings::callsCount},
         .title = QT_TRANSLATE_NOOP("Words", "Calls and videos count as being here"),
         .caption = QT_TRANSLATE_NOOP(
             "Words", "While an app keeps the screen awake, the clock goes on without a keystroke "
                      "or click, for four hours in a row at most. Vantle learns only that an app "
                      "does so, never what you hear or see."),
         .gap = &DesktopGaps::callsAdvice},
        {.section = PreferenceRowModel::Focus,
         .kind = PreferenceRowModel::Stepper,
         .setting = Range{settings::dailyGoalHours, 1, 0.5, 12, 0.5, &dashformat::inlineHours,
                          QT_TRANSLATE_NOOP("Words", "Daily goal, half an hour less"),
                          QT_TRANSLATE_NOOP("Words", "Daily goal, half an hour more")},
         .title = QT_TRANSLATE_NOOP("Words", "Daily goal"),
         .caption = QT_TRANSLATE_NOOP(
             "Words", "The dashboard's Today card measures against this goal, and This "
                      "week against seven of it. Default is 2 hours.")},
    };
}

QList<Entry> ceremonyRows() {
    return {
        {.section = PreferenceRowModel::Ceremony,
         .kind = PreferenceRowModel::Switch,
         .setting = OnOff{settings::rippleDisabled, true},
         .title = QT_TRANSLATE_NOOP("Words", "Ripple ceremony"),
         .caption = QT_TRANSLATE_NOOP(
             "Words", "Presenter mode: turn this off before a screen share and the ceremony never "
                      "crashes your call. It's a manual switch on purpose: macOS can only detect "
                      "screen sharing through an API that itself triggers the Screen Recording "
                      "permission prompt, the exact pop-up this app promises never to show."),
         .gap = &DesktopGaps::ceremonyAdvice},
        {.section = PreferenceRowModel::Ceremony,
         .kind = PreferenceRowModel::Switch,
         .setting = OnOff{settings::ceremonyBlackout},
         .title = QT_TRANSLATE_NOOP("Words", "Black out the screen"),
         .caption = QT_TRANSLATE_NOOP(
             "Words", "The ritual plays on a fully black screen instead of over your "
                      "dimmed desktop. Your windows come back the moment it ends. Turn "
                      "this on when the apps behind the dots feel busy.")},
    };
}

QList<Entry> autoModeRows() {
    return {
        {.section = PreferenceRowModel::AutoMode,
         .kind = PreferenceRowModel::Switch,
         .setting = OnOff{settings::autoMode},
         .title = QT_TRANSLATE_NOOP("Words", "Auto mode"),
         .caption = QT_TRANSLATE_NOOP(
             "Words",
             "On from the first launch; this switch turns it off. Vantle notices which app is in "
             "front and files the time under the right category on its own. It already knows the "
             "common tools: Claude, Codex and Xcode count as Build, Figma as Design, Slack and "
             "Mail as Connections, Notion and Linear as Founder Ops, and dozens more. Anything it "
             "does not recognize, it asks you about once, right when you are in it. Stay in a "
             "mapped app for about 45 seconds and a running session switches by itself. Every "
             "mapping is yours to change below."),
         .note = QT_TRANSLATE_NOOP(
             "Words", "It reads only the app's name. No window titles, no tabs, no documents, "
                      "no screen. App names never leave this Mac."),
         .gap = &DesktopGaps::autoModeAdvice,
         .remedy = &DesktopGaps::autoModeRemedy,
         .applyRemedy = &DesktopGaps::applyAutoModeRemedy},
        {.section = PreferenceRowModel::AutoMode,
         .kind = PreferenceRowModel::Switch,
         .setting = OnOff{settings::autoStart},
         .title = QT_TRANSLATE_NOOP("Words", "Start sessions automatically"),
         .caption = QT_TRANSLATE_NOOP(
             "Words", "After about 2 minutes in a mapped app, vantle starts on its own."),
         .gap = &DesktopGaps::autoStartAdvice},
    };
}

} // namespace

const QList<Entry>& settingsTable() {
    static const QList<Entry> table = focusRows() + ceremonyRows() + autoModeRows();
    return table;
}

} // namespace vantle
