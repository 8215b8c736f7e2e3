// The model of the welcome: ten steps and a practice session.
#pragma once

#include "base/Scheduler.h"
#include "surfaces/skills/SkillEditor.h"
#include "surfaces/skills/SkillListModel.h"
#include "surfaces/welcome/WelcomeSamples.h"
#include "surfaces/welcome/WelcomeText.h"
#include "tracking/TrackerCore.h"

#include <QColor>
#include <QObject>
#include <QQmlEngine>
#include <QStringList>

#include <functional>

namespace vantle {

class AppModel;
class NotificationCenter;
class Preferences;
class ReducedMotion;

/// The step is not stored: each opening starts with the first. finish() ends the welcome for good
/// by a preference. Main thread.
class WelcomeView final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the window router.")
    Q_PROPERTY(int step READ step NOTIFY stepChanged FINAL)
    Q_PROPERTY(int stepCount READ stepCount CONSTANT FINAL)
    Q_PROPERTY(QString title READ title NOTIFY stepChanged FINAL)
    Q_PROPERTY(QString body READ body NOTIFY wordsChanged FINAL)
    /// Title and body together, for the main button and screen readers.
    Q_PROPERTY(QString spoken READ spoken NOTIFY wordsChanged FINAL)
    Q_PROPERTY(QString sampleLine READ sampleLine NOTIFY stepChanged FINAL)
    Q_PROPERTY(QString sampleLabel READ sampleLabel NOTIFY stepChanged FINAL)
    /// Why the shortcut does not work, on the step that needs it; empty when it does.
    Q_PROPERTY(QString shortcutProblem READ shortcutProblem NOTIFY shortcutProblemChanged FINAL)
    Q_PROPERTY(QString primaryText READ primaryText NOTIFY wordsChanged FINAL)
    Q_PROPERTY(bool canPressPrimary READ canPressPrimary NOTIFY practiceChanged FINAL)
    Q_PROPERTY(QString quietText READ quietText NOTIFY stepChanged FINAL)
    Q_PROPERTY(QString asideText READ asideText NOTIFY wordsChanged FINAL)
    Q_PROPERTY(QString productName MEMBER m_productName NOTIFY productNameChanged FINAL)

    Q_PROPERTY(vantle::SkillListModel* modes READ modes CONSTANT FINAL)
    /// The editor that adds or renames a mode.
    Q_PROPERTY(vantle::SkillEditor* category READ category CONSTANT FINAL)
    Q_PROPERTY(bool canAddCategory READ canAddCategory NOTIFY modesChanged FINAL)
    /// The result of the last change to a mode; empty before the first.
    Q_PROPERTY(QString modesNote READ modesNote NOTIFY modesChanged FINAL)

    /// The session of the steps Press and Stop: its skill, and its time as figures and units in
    /// turn. Practice, or during a replay work that was started without the button.
    Q_PROPERTY(QString practiceSkill READ practiceSkill NOTIFY practiceChanged FINAL)
    Q_PROPERTY(QColor practiceColor READ practiceColor NOTIFY practiceChanged FINAL)
    Q_PROPERTY(QStringList practiceWords READ practiceWords NOTIFY practiceTicked FINAL)
    Q_PROPERTY(QString practiceTime READ practiceTime NOTIFY practiceTicked FINAL) ///< as one text
    Q_PROPERTY(bool practiceRunning READ isPracticeRunning NOTIFY practiceChanged FINAL)

    /// The pictures of the steps.
    Q_PROPERTY(vantle::WelcomeSamples* samples READ samples CONSTANT FINAL)

public:
    /// The services of the welcome. All of them must outlive the model.
    struct Environment {
        AppModel& model;
        NotificationCenter& notifications;
        const Preferences& preferences;
        const ReducedMotion& reducedMotion;
        Scheduler& scheduler;
        std::function<void()> orderOut;     ///< hides the window for a while
        std::function<void()> bringForward; ///< raises it with keyboard focus
        std::function<void()> openWrapped;
        std::function<void()> onClose;
        /// Whether the window has the keyboard.
        std::function<bool()> isInFront = [] { return true; };
    };

    explicit WelcomeView(Environment environment);
    ~WelcomeView() override;

    /// The step's main button.
    Q_INVOKABLE void pressPrimary();
    /// The secondary button.
    Q_INVOKABLE void pressQuiet();
    /// Ends the welcome for good and closes the window, like closing the window does.
    Q_INVOKABLE void finish();

    Q_INVOKABLE void addCategory();
    Q_INVOKABLE void beginRename(const QString& skillId);
    Q_INVOKABLE void removeCategory(const QString& skillId);
    /// Adds or renames if the name is long enough; closes the editor in any case.
    Q_INVOKABLE void commitCategory();

    [[nodiscard]] int step() const { return m_step; }
    [[nodiscard]] static int stepCount() { return welcometext::stepCount; }
    [[nodiscard]] QString title() const { return welcometext::title(m_step); }
    [[nodiscard]] QString spoken() const { return title() + QStringLiteral(". ") + body(); }
    [[nodiscard]] QString body() const;
    [[nodiscard]] QString sampleLine() const { return welcometext::sampleLine(m_step); }
    [[nodiscard]] QString sampleLabel() const { return welcometext::sampleLabel(m_step); }
    [[nodiscard]] QString shortcutProblem() const;
    [[nodiscard]] QString primaryText() const;
    [[nodiscard]] bool canPressPrimary() const { return !m_waitingForStopCard; }
    [[nodiscard]] QString quietText() const { return welcometext::quiet(m_step); }
    [[nodiscard]] QString asideText() const;

    [[nodiscard]] SkillListModel* modes() { return &m_modes; }
    [[nodiscard]] SkillEditor* category() { return &m_category; }
    [[nodiscard]] bool canAddCategory() const;
    [[nodiscard]] const QString& modesNote() const { return m_modesNote; }

    [[nodiscard]] QString practiceSkill() const;
    [[nodiscard]] QColor practiceColor() const;
    [[nodiscard]] const QStringList& practiceWords() const { return m_practiceWords; }
    [[nodiscard]] QString practiceTime() const { return m_practiceWords.join(QLatin1Char(' ')); }
    [[nodiscard]] bool isPracticeRunning() const { return m_practiceRunning; }
    [[nodiscard]] bool isWaitingForStopCard() const { return m_waitingForStopCard; }

    [[nodiscard]] WelcomeSamples* samples() { return m_samples.get(); }

Q_SIGNALS:
    void stepChanged();
    void wordsChanged();
    void shortcutProblemChanged();
    void productNameChanged();
    void modesChanged();
    void practiceChanged();
    void practiceTicked();

private:
    void goTo(int step);
    void commitPick();
    void followState();
    void followSession();
    void stopCardClosed();
    void bowOutForCeremony();
    void bringForward();
    void refreshModes();
    void refreshClock();
    [[nodiscard]] TrackerCore& tracker() const;
    [[nodiscard]] Skill practisedSkill() const;
    /// Whether work is running that the button of the step Press must not touch.
    [[nodiscard]] bool isAtWork() const;

    const Environment m_env;
    int m_step = welcometext::Pick;
    bool m_finished = false;
    QString m_productName;
    SkillListModel m_modes;
    SkillEditor m_category;
    QString m_modesNote;
    bool m_sessionOpen = false; ///< as last seen
    bool m_practiceRunning = false;
    bool m_isPractice = true; ///< of the last session followed
    bool m_waitingForStopCard = false;
    QString m_practiceSkillId;
    QStringList m_practiceWords;
    std::unique_ptr<WelcomeSamples> m_samples;
    TimerHandle m_return; ///< runs while the window is hidden for the ceremony
    TimerHandle m_clock;
};

} // namespace vantle
