// The page about the user's persona.
//
// Plain values and pure functions, any thread.
#pragma once

#include "review/CardWords.h"

#include <QStringList>

namespace vantle {

struct PersonaCard {
    Q_GADGET
    QML_VALUE_TYPE(personaCard)
    Q_PROPERTY(QString kicker MEMBER kicker CONSTANT)
    Q_PROPERTY(QString lead MEMBER lead CONSTANT)
    Q_PROPERTY(QString name MEMBER name CONSTANT)
    Q_PROPERTY(QString line MEMBER line CONSTANT)
    Q_PROPERTY(QStringList facts MEMBER facts CONSTANT)
    Q_PROPERTY(QString quiet MEMBER quiet CONSTANT)
    Q_PROPERTY(QColor startColor MEMBER startColor CONSTANT)
    Q_PROPERTY(QColor endColor MEMBER endColor CONSTANT)
    Q_PROPERTY(QString symbol MEMBER symbol CONSTANT)
    Q_PROPERTY(QString artwork MEMBER artwork CONSTANT)
    Q_PROPERTY(QList<QColor> celebrationColors MEMBER celebrationColors CONSTANT)
    Q_PROPERTY(qint64 dotCount MEMBER dotCount CONSTANT)
    Q_PROPERTY(int sessionCount MEMBER sessionCount CONSTANT)
    Q_PROPERTY(int activeDays MEMBER activeDays CONSTANT)

public:
    QString kicker;
    QString lead;
    QString name; ///< empty while there are too few sessions
    QString line;
    QStringList facts; ///< three with a persona, else two
    QString quiet;
    QColor startColor; ///< of its gradient
    QColor endColor;
    QString symbol;                  ///< "moon.fill"
    QString artwork;                 ///< "persona-night-owl"
    QList<QColor> celebrationColors; ///< at most five
    qint64 dotCount = 0;             ///< finished hours, for the rim of the glyph
    int sessionCount = 0;            ///< for the glyph without a persona
    int activeDays = 0;
};

namespace reviewcards {

inline constexpr int personaSessionsNeeded = 5;
inline constexpr int personaDaysNeeded = 2;

[[nodiscard]] PersonaCard persona(const WrappedStats& stats);

} // namespace reviewcards
} // namespace vantle
