#include "review/drawing/PersonaArtwork.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace vantle::personaartwork {
namespace {

QImage plain(const QColor& color) {
    QImage all(4, 4, QImage::Format_RGB32);
    all.fill(color);
    return all;
}

TEST(PersonaArtwork, IsFoundAmongTheFilesOfTheProgramAndKept) {
    const QTemporaryDir folder;
    ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("personas")));
    const QString file = folder.filePath(QStringLiteral("personas/persona-night-owl.png"));
    QDir::setSearchPaths(searchPrefix(), {folder.path()});

    EXPECT_TRUE(image({}).isNull());
    EXPECT_TRUE(image(QStringLiteral("persona-deep-diver")).isNull());

    ASSERT_TRUE(plain(Qt::red).save(file));
    const QImage found = image(QStringLiteral("persona-night-owl"));
    ASSERT_FALSE(found.isNull());
    EXPECT_EQ(found.pixelColor(1, 1), QColor(Qt::red));
    ASSERT_TRUE(plain(Qt::blue).save(file));
    EXPECT_EQ(image(QStringLiteral("persona-night-owl")).pixelColor(1, 1), QColor(Qt::red))
        << "looked for once";

    ASSERT_TRUE(
        plain(Qt::red).save(folder.filePath(QStringLiteral("personas/persona-deep-diver.png"))));
    EXPECT_TRUE(image(QStringLiteral("persona-deep-diver")).isNull())
        << "a search without success is kept as well";
}

} // namespace
} // namespace vantle::personaartwork
