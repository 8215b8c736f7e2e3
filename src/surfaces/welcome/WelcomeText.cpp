#include "surfaces/welcome/WelcomeText.h"

#include "base/Bidi.h"
#include "base/Words.h"

#include <array>

namespace vantle::welcometext {

namespace {

struct StepText {
    const char* title;
    const char* body;
    const char* ofPractice = nullptr; ///< a sentence added for a practice session
};

constexpr std::array<StepText, stepCount> kTexts = {{
    {QT_TRANSLATE_NOOP("Words", "What are you working towards?"),
     QT_TRANSLATE_NOOP("Words", "Name the thing your hours are going into. Vantle counts the time "
                                "you actually put in, and it can't see your screen.")},
    {QT_TRANSLATE_NOOP("Words", "These are your modes"),
     QT_TRANSLATE_NOOP(
         "Words",
         "Your hours sort into these. Add your own, rename them, remove any you will not use.")},
    {QT_TRANSLATE_NOOP("Words", "Press it now"),
     QT_TRANSLATE_NOOP("Words", "That's the whole app: one press and the clock starts on "
                                "{project}. The same press stops it.")},
    {QT_TRANSLATE_NOOP("Words", "You're building"),
     QT_TRANSLATE_NOOP("Words", "The clock is running on {project}. Press ⌘⌥B again to stop."),
     QT_TRANSLATE_NOOP("Words", "This one is practice, so it will not land on your wall.")},
    {QT_TRANSLATE_NOOP("Words", "As easy as that"),
     QT_TRANSLATE_NOOP("Words", "That was the whole ritual."),
     QT_TRANSLATE_NOOP("Words", "Your real hours start with your next press.")},
    {QT_TRANSLATE_NOOP("Words", "Switch modes from the notch"),
     QT_TRANSLATE_NOOP(
         "Words",
         "While a session runs, hover the notch at the top of your screen. Click another mode and "
         "the minutes so far are saved to the one you leave, then the clock keeps going.")},
    {QT_TRANSLATE_NOOP("Words", "Your hours, one click away"),
     QT_TRANSLATE_NOOP("Words", "The brick lives in your menu bar. Click it for the panel; your "
                                "wall, your totals and your sessions are right there.")},
    {QT_TRANSLATE_NOOP("Words", "What is behind it"),
     QT_TRANSLATE_NOOP("Words", "One click on the brick opens all of this.")},
    {QT_TRANSLATE_NOOP("Words", "Your work, wrapped"),
     QT_TRANSLATE_NOOP(
         "Words", "Your hours, your rhythm and your builder type, in one image worth posting.")},
    {QT_TRANSLATE_NOOP("Words", "That is the whole app"),
     QT_TRANSLATE_NOOP("Words", "One press starts it, the same press ends it, and the brick in "
                                "your menu bar holds the rest. Your hours stay on this Mac.")},
}};

const StepText& textOf(int step) { return kTexts.at(static_cast<std::size_t>(step)); }

} // namespace

QString title(int step) { return Words::tr(textOf(step).title); }

QString body(int step, const QString& projectName, bool isPractice) {
    const StepText& text = textOf(step);
    const QString project =
        projectName.isEmpty() ? Words::tr("your work") : bidi::isolated(projectName);
    const QString body = Words::tr(text.body).replace(QLatin1String("{project}"), project);
    if (!isPractice || !text.ofPractice) return body;
    return body + QLatin1Char(' ') + Words::tr(text.ofPractice);
}

QString sampleLine(int step) {
    const bool isSample = step == Success || step == Dashboard || step == Brick || step == Wrapped;
    return isSample ? Words::tr("A sample. Yours is one click away.") : QString();
}

QString sampleLabel(int step) {
    switch (step) {
    case Success:
        return Words::tr(
            "A sample of applications and the modes that they file under: Terminal as Build, "
            "Blender as Design, Thunderbird as Connections, Ledger as Founder Ops");
    case Notch:
        return Words::tr("A sample of the open notch: the running clock, and your modes below it");
    case Dashboard:
        return Words::tr("A sample of the Your hours dashboard: totals for today, this week and "
                         "all time, and the hour wall");
    case Brick:
        return Words::tr("A sample of the panel: the button that starts a session, your modes, and "
                         "the ways to Dashboard, Wrapped, Notes and Settings");
    case Wrapped:
        return Words::tr("A sample weekly Wrapped: builder type Night Owl, a week of day tiles, "
                         "and hours by category");
    default:
        return {};
    }
}

QString primary(int step) {
    switch (step) {
    case Press:
        return Words::tr("Enter Vantle");
    case Stop:
        return Words::tr("Stop Vantle");
    case Done:
        return Words::tr("Start building");
    default:
        return Words::tr("Continue");
    }
}

QString quiet(int step) {
    if (step == Pick) return Words::tr("skip the welcome");
    return step == Wrapped ? Words::tr("Open Wrapped") : QString();
}

QString aside(int step) { return step == Press ? Words::tr("or click here instead") : QString(); }

} // namespace vantle::welcometext
