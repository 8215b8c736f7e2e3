#include "review/drawing/PersonaArtwork.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace vantle {
namespace {

QImage plain(const QColor& color) {
    QImage image(4, 4, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

TEST(PersonaArtwork, IsFoundAmongTheFilesOfTheProgramAndKept) {
    const QTemporaryDir folder;
    ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("personas")));
    const QString file = folder.filePath(QStringLiteral("personas/persona-night-owl.png"));
    QDir::setSearchPaths(personaartwork::searchPrefix(), {folder.path()});

    EXPECT_TRUE(personaartwork::image({}).isNull());
    EXPECT_TRUE(personaartwork::image(QStringLiteral("persona-deep-diver")).isNull());

    ASSERT_TRUE(plain(Qt::red).save(file));
    const QImage image = personaartwork::image(QStringLiteral("persona-night-owl"));
    ASSERT_FALSE(image.isNull());
    EXPECT_EQ(image.pixelColor(1, 1), QColor(Qt::red));
    ASSERT_TRUE(plain(Qt::blue).save(file));
    EXPECT_EQ(personaartwork::image(QStringLiteral("persona-night-owl")).pixelColor(1, 1),
              QColor(Qt::red))
        << "looked for once";

    ASSERT_TRUE(
        plain(Qt::red).save(folder.filePath(QStringLiteral("personas/persona-deep-diver.png"))));
    EXPECT_TRUE(personaartwork::image(QStringLiteral("persona-deep-diver")).isNull())
        << "a search without success is kept as well";
}

} // namespace
} // namespace vantle
