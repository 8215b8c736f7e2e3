#include "ceremony/CeremonyPage.h"

#include "support/Text.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace vantle::tests {
namespace {

QJsonObject configured(CeremonyShow show, std::uint32_t hexRGB = 0x7A78FF,
                       const std::optional<QString>& skill = {}, bool blackout = true) {
    return QJsonDocument::fromJson(
               ceremonypage::configuration(show, CeremonyVariant::Rain, hexRGB, skill, blackout))
        .object();
}

TEST(CeremonyPage, ThePageIsToldEverythingByName) {
    EXPECT_EQ(configured(CeremonyShow::Full, 0xFF375F, text("Writing"), false),
              (QJsonObject{{text("variant"), text("rain")},
                           {text("accent"), text("#FF375F")},
                           {text("reduced"), false},
                           {text("mode"), text("full")},
                           {text("milestone"), 0},
                           {text("title"), text("You are in Writing mode")},
                           {text("blackout"), false}}));
}

TEST(CeremonyPage, LeadingZerosOfTheColourStayAndHighBitsAreCut) {
    EXPECT_EQ(configured(CeremonyShow::Full, 0x00A0FF)[text("accent")], text("#00A0FF"));
    EXPECT_EQ(configured(CeremonyShow::Full, 0xFF00000A)[text("accent")], text("#00000A"));
}

TEST(CeremonyPage, AMilestoneTellsItsHoursAtLeastOne) {
    EXPECT_EQ(configured(CeremonyShow::milestone(250))[text("milestone")], 250);
    EXPECT_EQ(configured(CeremonyShow::milestone(250))[text("mode")], text("milestone"));
    EXPECT_EQ(configured(CeremonyShow::milestone(0))[text("milestone")], 1);
    EXPECT_EQ(configured(CeremonyShow::Quick)[text("mode")], text("quick"));
    EXPECT_EQ(configured(CeremonyShow::Quick)[text("milestone")], 0);
}

TEST(CeremonyPage, ANameWithQuotesAndForeignLettersArrivesIntact) {
    const QString name = text("\"Große\" </script> \\ \xE2\x80\xA8 \xF0\x9F\x8E\xB8");
    const QByteArray json =
        ceremonypage::configuration(CeremonyShow::Full, CeremonyVariant::Nova, 0, name, true);
    EXPECT_TRUE(QJsonDocument::fromJson(json).object()[text("title")].toString().contains(
        text("\"Große\" </script> \\")));
    EXPECT_TRUE(std::all_of(json.begin(), json.end(), [](char byte) {
        return byte >= ' ' && byte < 127 && byte != '<';
    })) << "nothing that could end the script, or a line in it";
}

TEST(CeremonyPage, ATitleThatIsNoTextGivesThePlainOne) {
    const QString broken = text("half of a pair: ") + QChar(0xD83C);
    EXPECT_EQ(
        ceremonypage::configuration(CeremonyShow::Full, CeremonyVariant::Nova, 0, broken, true),
        QByteArray(R"({"title":"You are in Vantle"})"));
}

TEST(CeremonyPage, TheScriptIsOneStatement) {
    EXPECT_EQ(ceremonypage::script(QByteArrayLiteral("{\"a\":1}")),
              text("window.__CEREMONY = {\"a\":1};"));
}

class CeremonyPageFiles : public testing::Test {
protected:
    CeremonyPageFiles() {
        put(text("resources/ceremony.html"));
        put(text("resources/art/star.png"));
        put(text("resources-of-others/star.png"));
        put(text("secret"));
    }

    void put(const QString& name) {
        QDir().mkpath(QFileInfo(at(name)).path());
        QFile file(at(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    [[nodiscard]] QString at(const QString& name) const { return m_root.filePath(name); }
    /// `name` as it stands in an address, escapes included.
    [[nodiscard]] bool mayLoad(const char* name) const {
        const QString address = QUrl::fromLocalFile(m_root.path()).toString(QUrl::FullyEncoded) +
                                QLatin1Char('/') + QLatin1String(name);
        return ceremonypage::mayLoad(at(text("resources/ceremony.html")), QUrl(address));
    }

    const QTemporaryDir m_root;
};

TEST_F(CeremonyPageFiles, ThePageLoadsItselfAndTheFilesOfItsFolder) {
    EXPECT_TRUE(mayLoad("resources/ceremony.html"));
    EXPECT_TRUE(mayLoad("resources/ceremony.html#part"));
    EXPECT_TRUE(mayLoad("resources/art/star.png?size=2"));
    EXPECT_TRUE(mayLoad("resources/art/../art/st%61r.png"));
}

TEST_F(CeremonyPageFiles, ThePageLoadsNoFileOutsideItsFolder) {
    for (const char* name :
         {"secret", "resources/../secret", "resources/%2e%2e/secret", "resources/art/../../secret",
          "resources-of-others/star.png", "resources/nothing.png", "resources/art", "resources/",
          "resources/art%2F..%2Fart%2fstar.png"})
        EXPECT_FALSE(mayLoad(name)) << name;
    EXPECT_FALSE(ceremonypage::mayLoad(at(text("resources/ceremony.html")),
                                       QUrl(text("file:///etc/passwd"))));
}

TEST_F(CeremonyPageFiles, ALinkIsWhatItLeadsTo) {
    ASSERT_TRUE(QFile::link(at(text("secret")), at(text("resources/out"))));
    ASSERT_TRUE(QFile::link(m_root.path(), at(text("resources/up"))));
    ASSERT_TRUE(QFile::link(at(text("resources/art")), at(text("resources/pictures"))));
    EXPECT_FALSE(mayLoad("resources/out"));
    EXPECT_FALSE(mayLoad("resources/up/secret"));
    EXPECT_TRUE(mayLoad("resources/pictures/star.png"));
}

TEST_F(CeremonyPageFiles, APageThatIsALinkStaysInTheFolderWhereItWasFound) {
    ASSERT_TRUE(QFile::rename(at(text("resources/ceremony.html")), at(text("mine.html"))));
    ASSERT_TRUE(QFile::link(at(text("mine.html")), at(text("resources/ceremony.html"))));
    EXPECT_TRUE(mayLoad("resources/ceremony.html"));
    EXPECT_TRUE(mayLoad("resources/art/star.png"));
    EXPECT_FALSE(mayLoad("mine.html"));
}

TEST_F(CeremonyPageFiles, AFolderThatIsReachedByALinkIsTheFolder) {
    ASSERT_TRUE(QFile::link(at(text("resources")), at(text("link"))));
    EXPECT_TRUE(ceremonypage::mayLoad(at(text("link/ceremony.html")),
                                      QUrl::fromLocalFile(at(text("link/art/star.png")))));
}

TEST_F(CeremonyPageFiles, OfOtherAddressesThePageLoadsWhatItCarriesItself) {
    const QString page = at(text("resources/ceremony.html"));
    EXPECT_TRUE(ceremonypage::mayLoad(page, QUrl(text("data:text/plain,star"))));
    EXPECT_TRUE(ceremonypage::mayLoad(page, QUrl(text("blob:file:///0a1b"))));
    for (const char* address :
         {"http://127.0.0.1/", "https://example.org/", "ws://127.0.0.1/", "ftp://example.org/",
          "filesystem:file:///temporary/a", "qrc:/qt/a", "chrome://version", "about:blank"})
        EXPECT_FALSE(ceremonypage::mayLoad(page, QUrl(text(address)))) << address;
    QUrl elsewhere = QUrl::fromLocalFile(at(text("resources/art/star.png")));
    elsewhere.setHost(text("server"));
    EXPECT_FALSE(ceremonypage::mayLoad(page, elsewhere)) << "a file of another machine";
}

} // namespace
} // namespace vantle::tests
