// The content of the toast after a change of skill.
#pragma once

#include "base/Words.h"

#include <QColor>
#include <QObject>
#include <QQmlEngine>

namespace vantle {

/// Main thread.
class RetagToastModel final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the controller.")
    Q_PROPERTY(QString text READ text CONSTANT)
    /// The text for screen readers.
    Q_PROPERTY(QString spoken READ spoken CONSTANT)
    /// The skill under which the time was logged.
    Q_PROPERTY(QString skillName READ skillName CONSTANT)
    Q_PROPERTY(QColor skillColor READ skillColor CONSTANT)

public:
    RetagToastModel(const QString& savedTime, const QString& skillName, const QColor& skillColor)
        : m_text(Words::tr("%1 saved").arg(savedTime))
        , m_skillName(skillName)
        , m_skillColor(skillColor) {}

    [[nodiscard]] const QString& text() const { return m_text; }
    [[nodiscard]] QString spoken() const { return m_text + QStringLiteral(", ") + m_skillName; }
    [[nodiscard]] const QString& skillName() const { return m_skillName; }
    [[nodiscard]] const QColor& skillColor() const { return m_skillColor; }

private:
    const QString m_text;
    const QString m_skillName;
    const QColor m_skillColor;
};

} // namespace vantle
