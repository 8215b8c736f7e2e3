// The sample data in the welcome's pictures.
#pragma once

#include "review/SharePoster.h"
#include "surfaces/capsule/NotchCapsule.h"
#include "tracking/Skill.h"

#include <QColor>
#include <QObject>
#include <QQmlEngine>
#include <QVariantList>

#include <memory>
#include <vector>

namespace vantle {

class CapsuleText;
class Preferences;
class ReducedMotion;
class Scheduler;

/// A sample application and its mode.
struct SampleApp {
    Q_GADGET
    QML_VALUE_TYPE(sampleApp)
    Q_PROPERTY(QString name MEMBER name CONSTANT)
    Q_PROPERTY(QString initial READ initial CONSTANT)
    Q_PROPERTY(QString skillName MEMBER skillName CONSTANT)
    Q_PROPERTY(QColor color MEMBER color CONSTANT)

public:
    [[nodiscard]] QString initial() const { return name.left(1); }

    QString name;
    QString skillName;
    QColor color;
};

/// Nothing here is from the user's log. Only the capsule shows the user's modes, since its picture
/// follows their choice. Main thread.
class WelcomeSamples final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the welcome.")
    Q_PROPERTY(QVariantList apps READ apps CONSTANT FINAL)     ///< a SampleApp each
    Q_PROPERTY(QVariantList stats READ stats CONSTANT FINAL)   ///< a StatBlock each
    Q_PROPERTY(QList<QColor> wall READ wall CONSTANT FINAL)    ///< finished hours
    Q_PROPERTY(QVariantList totals READ totals CONSTANT FINAL) ///< a SkillTotalLine each
    Q_PROPERTY(QVariantList recent READ recent CONSTANT FINAL) ///< a RecentLine each
    Q_PROPERTY(QVariantList modes READ modes CONSTANT FINAL)   ///< a SampleApp without a name each
    Q_PROPERTY(vantle::SharePoster poster READ poster CONSTANT FINAL)
    Q_PROPERTY(vantle::NotchCapsule* capsule READ capsule NOTIFY capsuleChanged FINAL)
    /// The chip under the pointer in the picture; -1 for none.
    Q_PROPERTY(int hoveredChip READ hoveredChip NOTIFY capsuleChanged FINAL)

public:
    /// All of it must outlive the samples.
    struct Environment {
        Scheduler& scheduler;
        const Preferences& preferences;
        const ReducedMotion& reducedMotion;
    };

    explicit WelcomeSamples(const Environment& environment);
    ~WelcomeSamples() override;

    void showModes(const std::vector<Skill>& skills);

    [[nodiscard]] static QVariantList apps();
    [[nodiscard]] static QVariantList stats();
    [[nodiscard]] static QList<QColor> wall();
    [[nodiscard]] static QVariantList totals();
    [[nodiscard]] static QVariantList recent();
    [[nodiscard]] static QVariantList modes();
    /// A sample week.
    [[nodiscard]] static SharePoster poster();
    /// Created on first use, since it measures texts and needs the fonts.
    [[nodiscard]] NotchCapsule* capsule();
    [[nodiscard]] int hoveredChip() const;

Q_SIGNALS:
    void capsuleChanged();

private:
    const Environment m_env;
    std::vector<Skill> m_skills;
    std::unique_ptr<CapsuleText> m_capsuleText;
    std::unique_ptr<NotchCapsule> m_capsule;
};

} // namespace vantle
