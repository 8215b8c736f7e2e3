#include "surfaces/welcome/WelcomeText.h"

#include <array>

namespace vantle::welcometext {

namespace {

struct Words {
    const char* title;
    const char* body;
    const char* ofPractice = ""; ///< what follows the body where the session is practice
};

constexpr std::array<Words, stepCount> kWords = {{
    {"What are you working towards?",
     "Name the thing your hours are going into. Vantle counts the time you actually put in, and it "
     "can't see your screen."},
    {"These are your modes",
     "Your hours sort into these. Add your own, rename them, remove any you will not use."},
    {"Press it now",
     "That's the whole app: one press and the clock starts on {project}. The same press stops it."},
    {"You're building", "The clock is running on {project}. Press ⌘⌥B again to stop.",
     " This one is practice, so it will not land on your wall."},
    {"As easy as that", "That was the whole ritual.",
     " Your real hours start with your next press."},
    {"Switch modes from the notch",
     "While a session runs, hover the notch at the top of your screen. Click another mode and the "
     "minutes so far are saved to the one you leave, then the clock keeps going."},
    {"Your hours, one click away",
     "The brick lives in your menu bar. Click it for the panel; your wall, your totals and your "
     "sessions are right there."},
    {"What is behind it", "One click on the brick opens all of this."},
    {"Your work, wrapped",
     "Your hours, your rhythm and your builder type, in one image worth posting."},
    {"That is the whole app",
     "One press starts it, the same press ends it, and the brick in your menu bar holds the rest. "
     "Your hours stay on this Mac."},
}};

const Words& wordsOf(int step) { return kWords.at(static_cast<std::size_t>(step)); }

} // namespace

QString title(int step) { return QString::fromUtf8(wordsOf(step).title); }

QString body(int step, const QString& projectName, bool isPractice) {
    const Words& words = wordsOf(step);
    const QString project = projectName.isEmpty() ? QStringLiteral("your work") : projectName;
    return QString::fromUtf8(words.body).replace(QLatin1String("{project}"), project) +
           QString::fromUtf8(isPractice ? words.ofPractice : "");
}

QString sampleLine(int step) {
    const bool isSample = step == Success || step == Dashboard || step == Brick || step == Wrapped;
    return isSample ? QStringLiteral("A sample. Yours is one click away.") : QString();
}

QString sampleLabel(int step) {
    switch (step) {
    case Success:
        return QStringLiteral("A sample of applications and the modes that they file under: "
                              "Terminal as Build, Blender as Design, Thunderbird as Connections, "
                              "Ledger as Founder Ops");
    case Notch:
        return QStringLiteral("A sample of the open notch: the running clock, and your modes "
                              "below it");
    case Dashboard:
        return QStringLiteral("A sample of the Your hours dashboard: totals for today, this week "
                              "and all time, and the hour wall");
    case Brick:
        return QStringLiteral("A sample of the panel: the button that starts a session, your "
                              "modes, and the ways to Dashboard, Wrapped, Notes and Settings");
    case Wrapped:
        return QStringLiteral("A sample weekly Wrapped: builder type Night Owl, a week of day "
                              "tiles, and hours by category");
    default:
        return {};
    }
}

QString primary(int step) {
    switch (step) {
    case Press:
        return QStringLiteral("Enter Vantle");
    case Stop:
        return QStringLiteral("Stop Vantle");
    case Done:
        return QStringLiteral("Start building");
    default:
        return QStringLiteral("Continue");
    }
}

QString quiet(int step) {
    if (step == Pick) return QStringLiteral("skip the welcome");
    return step == Wrapped ? QStringLiteral("Open Wrapped") : QString();
}

QString aside(int step) {
    return step == Press ? QStringLiteral("or click here instead") : QString();
}

} // namespace vantle::welcometext
