// What every file system promises: reading, writing, names and modes.
#include "contract/FileSystemWorlds.h"

#include <array>
#include <cerrno>

namespace vantle {
namespace {

using OpenMode = FileSystem::OpenMode;

INSTANTIATE_TEST_SUITE_P(, FileSystemContract, testing::ValuesIn(fileSystemMakers()),
                         [](const auto& test) { return std::string(test.param.name); });

TEST_P(FileSystemContract, ReadsBackWhatWasWritten) {
    const QByteArray content("hello\0world", 11);
    put(at("a"), content);
    EXPECT_EQ(contentOf(at("a")), content);
}

TEST_P(FileSystemContract, CreatesAFileForItsOwnerOnly) {
    put(at("a"), "");
    EXPECT_EQ(files().mode(at("a")).value(), 0600);
}

TEST_P(FileSystemContract, NeverCreatesOverWhatIsThere) {
    put(at("a"), "old");
    const auto second = files().open(at("a"), OpenMode::CreateNew);
    ASSERT_FALSE(second);
    EXPECT_EQ(second.error().code, EEXIST);
    EXPECT_EQ(contentOf(at("a")), "old");
}

TEST_P(FileSystemContract, AppendsAtTheEndAlsoAfterAnother) {
    put(at("a"), "1");
    auto first = files().open(at("a"), OpenMode::Append);
    auto second = files().open(at("a"), OpenMode::Append);
    ASSERT_TRUE(first && second);
    EXPECT_TRUE(first.value()->write("2"));
    EXPECT_TRUE(second.value()->write("3"));
    EXPECT_TRUE(first.value()->write("4"));
    EXPECT_EQ(contentOf(at("a")), "1234");
}

TEST_P(FileSystemContract, ContinuesWritingWhereItStopped) {
    auto file = files().open(at("a"), OpenMode::CreateNew);
    ASSERT_TRUE(file);
    EXPECT_TRUE(file.value()->write("one "));
    EXPECT_TRUE(file.value()->write("two"));
    EXPECT_EQ(contentOf(at("a")), "one two");
}

TEST_P(FileSystemContract, ReadsInPiecesUntilTheEnd) {
    put(at("a"), "abcde");
    auto file = files().open(at("a"), OpenMode::Read);
    ASSERT_TRUE(file);
    std::array<char, 4> buffer{};
    EXPECT_EQ(file.value()->read(buffer.data(), 4).value(), 4);
    EXPECT_EQ(file.value()->read(buffer.data(), 4).value(), 1);
    EXPECT_EQ(buffer[0], 'e');
    EXPECT_EQ(file.value()->read(buffer.data(), 4).value(), 0);
}

TEST_P(FileSystemContract, TellsTheSizeOfAnOpenFile) {
    put(at("a"), "abc");
    auto file = files().open(at("a"), OpenMode::Append);
    ASSERT_TRUE(file);
    EXPECT_EQ(file.value()->size().value(), 3);
    EXPECT_TRUE(file.value()->write("de"));
    EXPECT_EQ(file.value()->size().value(), 5);
}

TEST_P(FileSystemContract, CutsAndLengthensAFile) {
    put(at("a"), "abcdef");
    auto file = files().open(at("a"), OpenMode::Append);
    ASSERT_TRUE(file);
    EXPECT_TRUE(file.value()->truncate(2));
    EXPECT_EQ(contentOf(at("a")), "ab");
    EXPECT_TRUE(file.value()->truncate(4));
    EXPECT_EQ(contentOf(at("a")), QByteArray("ab\0\0", 4));
    EXPECT_TRUE(file.value()->write("c"));
    EXPECT_EQ(contentOf(at("a")), QByteArray("ab\0\0c", 5));
    EXPECT_FALSE(file.value()->truncate(-1));
}

TEST_P(FileSystemContract, KeepsTheWritePositionWhenAFileIsCut) {
    auto file = files().open(at("a"), OpenMode::CreateNew);
    ASSERT_TRUE(file);
    EXPECT_TRUE(file.value()->write("abcdef"));
    EXPECT_TRUE(file.value()->truncate(2));
    EXPECT_TRUE(file.value()->write("g"));
    EXPECT_EQ(contentOf(at("a")), QByteArray("ab\0\0\0\0g", 7));
}

TEST_P(FileSystemContract, RefusesWhatTheFileWasNotOpenedFor) {
    put(at("a"), "abc");
    auto reader = files().open(at("a"), OpenMode::Read);
    auto writer = files().open(at("a"), OpenMode::Append);
    ASSERT_TRUE(reader && writer);
    char byte = 0;
    EXPECT_EQ(writer.value()->read(&byte, 1).error().code, EBADF);
    EXPECT_EQ(reader.value()->write("x").error().code, EBADF);
    EXPECT_FALSE(reader.value()->truncate(0));
    EXPECT_EQ(contentOf(at("a")), "abc");
}

TEST_P(FileSystemContract, SyncsAndClosesAndTellsSo) {
    auto file = files().open(at("a"), OpenMode::CreateNew);
    ASSERT_TRUE(file);
    EXPECT_TRUE(file.value()->write("abc"));
    EXPECT_TRUE(file.value()->sync());
    EXPECT_TRUE(file.value()->close());
    EXPECT_FALSE(file.value()->write("d")) << "a closed file is closed";
    EXPECT_TRUE(files().syncDirectory(at("")));
}

TEST_P(FileSystemContract, ListsTheNamesInADirectory) {
    EXPECT_EQ(files().names(at("")).value(), QStringList());
    put(at("a"), "");
    put(at(".hidden"), "");
    ASSERT_TRUE(files().makeDirectories(at("d/below"), 0700));
    QStringList names = files().names(at("")).value();
    names.sort();
    EXPECT_EQ(names,
              QStringList({QStringLiteral(".hidden"), QStringLiteral("a"), QStringLiteral("d")}));
    EXPECT_EQ(files().names(at("none")).error().code, ENOENT);
    EXPECT_EQ(files().names(at("a")).error().code, ENOTDIR);
}

TEST_P(FileSystemContract, ReadsAnOpenFileThatHasLostItsName) {
    put(at("a"), "abc");
    auto file = files().open(at("a"), OpenMode::Read);
    ASSERT_TRUE(file);
    ASSERT_TRUE(files().remove(at("a")));
    char byte = 0;
    EXPECT_EQ(file.value()->read(&byte, 1).value(), 1);
    EXPECT_EQ(byte, 'a');
    EXPECT_FALSE(files().exists(at("a")));
}

TEST_P(FileSystemContract, ReadsALongFileWhole) {
    QByteArray content;
    for (int i = 0; i < 100000; ++i)
        content += QByteArray::number(i);
    put(at("a"), content);
    EXPECT_EQ(contentOf(at("a")), content);
}

TEST_P(FileSystemContract, RenamesOverAFileInOneStep) {
    put(at("new"), "new");
    put(at("old"), "old");
    EXPECT_TRUE(files().rename(at("new"), at("old")));
    EXPECT_EQ(contentOf(at("old")), "new");
    EXPECT_FALSE(files().exists(at("new")));
}

TEST_P(FileSystemContract, RenamesADirectoryWithAllInIt) {
    ASSERT_TRUE(files().makeDirectories(at("old/deep"), 0700));
    put(at("old/deep/a"), "kept");
    EXPECT_TRUE(files().rename(at("old"), at("new")));
    EXPECT_EQ(contentOf(at("new/deep/a")), "kept");
    EXPECT_FALSE(files().exists(at("old")));
}

TEST_P(FileSystemContract, KeepsTheModeThroughARename) {
    put(at("a"), "");
    ASSERT_TRUE(files().setMode(at("a"), 0640));
    EXPECT_TRUE(files().rename(at("a"), at("b")));
    EXPECT_EQ(files().mode(at("b")).value(), 0640);
}

TEST_P(FileSystemContract, MakesEachMissingDirectoryWithTheModeAskedFor) {
    EXPECT_TRUE(files().makeDirectories(at("x/y/z"), 0700));
    for (const char* level : {"x", "x/y", "x/y/z"})
        EXPECT_EQ(files().mode(at(level)).value(), 0700) << level;
    ASSERT_TRUE(files().setMode(at("x"), 0750));
    EXPECT_TRUE(files().makeDirectories(at("x/y/z"), 0700)) << "what is there is fine";
    EXPECT_EQ(files().mode(at("x")).value(), 0750) << "and stays as it is";
}

TEST_P(FileSystemContract, MakesDirectoriesWithThePlatformsUsualMode) {
    EXPECT_TRUE(files().makeDirectories(at("x/y"), std::nullopt));
    EXPECT_EQ(files().mode(at("x/y")).value(), 0755);
}

TEST_P(FileSystemContract, LooksForThingsOfEveryKind) {
    put(at("a"), "");
    EXPECT_TRUE(files().exists(at("a")));
    EXPECT_TRUE(files().exists(at("")));
    EXPECT_FALSE(files().exists(at("b")));
    EXPECT_FALSE(files().exists(at("a/b")));
}

} // namespace
} // namespace vantle
