#include "platform/session/PortalSaveDialog.h"

#include "FakeFileChooser.h"
#include "fakes/FakeSaveDialog.h"
#include "support/Await.h"
#include "support/QtPrinters.h"

#include <QFile>
#include <QTemporaryDir>
#include <QWindow>

#include <gtest/gtest.h>

namespace vantle {
namespace {

using tests::await;
using tests::FakeFileChooser;

class PortalSaveDialogTest : public testing::Test {
protected:
    void ask(QWindow* above = nullptr) {
        m_open = m_dialog.ask({QStringLiteral("Save image"), QStringLiteral("wrapped-week.png"),
                               QStringLiteral("/home/ada"), QStringLiteral("PNG image"),
                               QStringLiteral("png")},
                              above, [this](const std::optional<QString>& path) {
                                  ++m_answers;
                                  m_path = path;
                              });
    }
    [[nodiscard]] bool awaitAnswer() {
        return await([this] { return m_answers > 0; });
    }

    tests::BusClient m_client;
    fakes::FakeSaveDialog m_otherwise;
    PortalSaveDialog m_dialog{m_client.bus(), m_otherwise};
    std::unique_ptr<OpenSaveDialog> m_open;
    int m_answers = 0;
    std::optional<QString> m_path;
};

TEST_F(PortalSaveDialogTest, TellsThePortalWhatIsSavedAndAnswersWithThePath) {
    FakeFileChooser portal;
    ask();
    ASSERT_TRUE(await([&] { return portal.asked; }));
    EXPECT_EQ(portal.title, QStringLiteral("Save image"));
    EXPECT_EQ(portal.options[QStringLiteral("current_name")].toString(),
              QStringLiteral("wrapped-week.png"));
    EXPECT_EQ(portal.options[QStringLiteral("current_folder")].toByteArray(),
              QByteArray("/home/ada\0", 10));
    EXPECT_EQ(portal.filterSignature(), QStringLiteral("a(sa(us))"));
    EXPECT_TRUE(portal.parent.isEmpty());
    portal.respond(0, QStringLiteral("file:///tmp/F%C3%BC%C3%9Fe/my%20week.png"));
    ASSERT_TRUE(awaitAnswer());
    EXPECT_EQ(m_path, QStringLiteral("/tmp/Füße/my week.png"));
    EXPECT_TRUE(m_otherwise.asked.empty());
}

TEST_F(PortalSaveDialogTest, AddressWithoutAWholePathIsNoAnswer) {
    FakeFileChooser portal;
    for (const char* uri : {"file:mine.png", "file:///tmp/mine%00.png", "https://example.org/a"}) {
        portal.asked = false;
        m_answers = 0;
        ask();
        ASSERT_TRUE(await([&] { return portal.asked; }));
        portal.respond(0, QString::fromLatin1(uri));
        ASSERT_TRUE(awaitAnswer());
        EXPECT_EQ(m_path, std::nullopt) << uri;
    }
}

TEST_F(PortalSaveDialogTest, NamesTheWindowThatTheDialogBelongsTo) {
    FakeFileChooser portal;
    QWindow window;
    window.create();
    ask(&window);
    ASSERT_TRUE(await([&] { return portal.asked; }));
    EXPECT_EQ(portal.parent, QStringLiteral("x11:%1").arg(window.winId(), 0, 16));
}

TEST_F(PortalSaveDialogTest, AddsTheEndingThatWasNotTyped) {
    FakeFileChooser portal;
    ask();
    ASSERT_TRUE(await([&] { return portal.asked; }));
    portal.respond(0, QStringLiteral("file:///nowhere/mine"));
    ASSERT_TRUE(awaitAnswer());
    EXPECT_EQ(m_path, QStringLiteral("/nowhere/mine.png"));
}

TEST_F(PortalSaveDialogTest, AddsNoEndingThatWouldReplaceAnUnaskedFile) {
    const QTemporaryDir folder;
    QFile other(folder.filePath(QStringLiteral("mine.png")));
    ASSERT_TRUE(other.open(QIODevice::WriteOnly));
    FakeFileChooser portal;
    ask();
    ASSERT_TRUE(await([&] { return portal.asked; }));
    portal.respond(0, QStringLiteral("file://") + folder.filePath(QStringLiteral("mine")));
    ASSERT_TRUE(awaitAnswer());
    EXPECT_EQ(m_path, folder.filePath(QStringLiteral("mine")));
}

TEST_F(PortalSaveDialogTest, AnswersWithNothingWhenThePortalEnds) {
    {
        FakeFileChooser portal;
        ask();
        ASSERT_TRUE(await([&] { return portal.asked; }));
    }
    ASSERT_TRUE(awaitAnswer());
    EXPECT_EQ(m_path, std::nullopt);
}

TEST_F(PortalSaveDialogTest, UsesTheOtherDialogWithoutAPortal) {
    ask();
    ASSERT_TRUE(await([this] { return m_otherwise.isOpen(); }));
    EXPECT_EQ(m_otherwise.asked.back().suggestedName, QStringLiteral("wrapped-week.png"));
    m_otherwise.choose(QStringLiteral("/tmp/a.png"));
    EXPECT_EQ(m_path, QStringLiteral("/tmp/a.png"));
}

TEST_F(PortalSaveDialogTest, UsesTheOtherDialogWhereThePortalHasNone) {
    FakeFileChooser portal;
    portal.hasDialog = false;
    ask();
    EXPECT_TRUE(await([this] { return m_otherwise.isOpen(); }));
}

TEST_F(PortalSaveDialogTest, UsesTheOtherDialogWithoutABus) {
    const QDBusConnection none = tests::noBus();
    PortalSaveDialog dialog(none, m_otherwise);
    const auto open = dialog.ask({}, nullptr, [](const auto&) {});
    EXPECT_TRUE(m_otherwise.isOpen());
}

TEST_F(PortalSaveDialogTest, AnAnswerThatCrossesTheEndOfTheDialogIsDropped) {
    FakeFileChooser portal;
    ask();
    ASSERT_TRUE(await([&] { return portal.asked; }));
    m_open.reset();
    ASSERT_TRUE(await([&] { return portal.closed; }));
    portal.respond(0, QStringLiteral("file:///tmp/late.png"));
    tests::runFor(50);
    EXPECT_EQ(m_answers, 0);
}

} // namespace
} // namespace vantle
