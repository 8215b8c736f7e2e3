// The offer of a rule for an application, for its view.
#pragma once

#include "base/Bidi.h"
#include "base/Words.h"
#include "tracking/Skill.h"

#include <QColor>
#include <QObject>
#include <QQmlEngine>

namespace vantle {

/// Main thread.
class CorrectionPromptModel final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the controller.")
    Q_PROPERTY(QString question READ question CONSTANT)
    Q_PROPERTY(QString skillName READ skillName CONSTANT)
    Q_PROPERTY(QColor skillColor READ skillColor CONSTANT)
    Q_PROPERTY(QString noHelp READ noHelp CONSTANT)
    Q_PROPERTY(QString alwaysHelp READ alwaysHelp CONSTANT)

public:
    CorrectionPromptModel(const QString& appName, const Skill& skill)
        : m_appName(appName)
        , m_skill(skill) {}

    [[nodiscard]] QString question() const {
        return Words::tr("Always count %1 as %2?")
            .arg(bidi::isolated(m_appName), bidi::isolated(m_skill.name));
    }
    [[nodiscard]] const QString& skillName() const { return m_skill.name; }
    [[nodiscard]] QColor skillColor() const { return QColor::fromRgb(m_skill.hexRGB); }
    [[nodiscard]] QString noHelp() const { return Words::tr("Keeps Auto mode as it is"); }
    [[nodiscard]] QString alwaysHelp() const {
        return Words::tr("Auto mode counts %1 as %2 from now on")
            .arg(bidi::isolated(m_appName), bidi::isolated(m_skill.name));
    }

    Q_INVOKABLE void decline() { Q_EMIT declined(); }
    Q_INVOKABLE void accept() { Q_EMIT accepted(); }

Q_SIGNALS:
    void declined();
    void accepted();

private:
    const QString m_appName;
    const Skill m_skill;
};

} // namespace vantle
