#include "surfaces/wrapped/PersonaDisc.h"

#include <QImage>
#include <QQuickWindow>

#include <gtest/gtest.h>

namespace vantle {
namespace {

TEST(PersonaDisc, PaintsTheKindOfItsCard) {
    QQuickWindow window;
    window.resize(132, 132);
    PersonaDisc disc(window.contentItem());
    disc.setSize({132, 132});
    PersonaCard card;
    card.name = QStringLiteral("Night Owl");
    card.symbol = QStringLiteral("moon.stars.fill");
    card.startColor = card.endColor = Qt::red;
    disc.setCard(card);
    EXPECT_EQ(window.grabWindow().pixelColor(66, 20), QColor(Qt::red));
    card.startColor = card.endColor = Qt::green;
    disc.setCard(card);
    EXPECT_EQ(window.grabWindow().pixelColor(66, 20), QColor(Qt::green)) << "and follows it";
    disc.setCard(PersonaCard());
    EXPECT_NE(window.grabWindow().pixelColor(66, 20), QColor(Qt::green)) << "taking shape";
}

} // namespace
} // namespace vantle
