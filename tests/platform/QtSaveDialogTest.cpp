#include "platform/desktop/QtSaveDialog.h"

#include "support/Await.h"
#include "support/QtPrinters.h"

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QWindow>

#include <gtest/gtest.h>

namespace vantle {
namespace {

/// The dialog on the screen; null when there is none.
QFileDialog* shownDialog() {
    for (QWidget* const widget : QApplication::topLevelWidgets())
        if (auto* const dialog = qobject_cast<QFileDialog*>(widget); dialog && dialog->isVisible())
            return dialog;
    return nullptr;
}

class QtSaveDialogTest : public testing::Test {
protected:
    void ask(QWindow* above = nullptr) {
        m_open = m_dialog.ask({QStringLiteral("Save image"), QStringLiteral("wrapped-week.png"),
                               m_folder.path(), QStringLiteral("PNG image"), QStringLiteral("png")},
                              above, [this](const std::optional<QString>& path) {
                                  ++m_answers;
                                  m_path = path;
                              });
    }

    const QTemporaryDir m_folder;
    QtSaveDialog m_dialog;
    std::unique_ptr<OpenSaveDialog> m_open;
    int m_answers = 0;
    std::optional<QString> m_path;
};

TEST_F(QtSaveDialogTest, SuggestsTheNameInTheFolder) {
    ask();
    ASSERT_NE(shownDialog(), nullptr);
    EXPECT_EQ(shownDialog()->selectedFiles(),
              QStringList{m_folder.filePath(QStringLiteral("wrapped-week.png"))});
    EXPECT_EQ(shownDialog()->selectedNameFilter(), QStringLiteral("PNG image (*.png)"));
    EXPECT_EQ(m_answers, 0) << "and waits for nobody";
}

TEST_F(QtSaveDialogTest, AnswersWithThePath) {
    ask();
    static_cast<QDialog*>(shownDialog())->accept();
    EXPECT_EQ(m_path, m_folder.filePath(QStringLiteral("wrapped-week.png")));
    EXPECT_EQ(m_answers, 1);
}

TEST_F(QtSaveDialogTest, LeavesReturnToWhatWasTyped) {
    ask();
    const auto fields = shownDialog()->findChildren<QLineEdit*>();
    ASSERT_FALSE(fields.isEmpty());
    for (const QLineEdit* field : fields)
        EXPECT_EQ(field->completer(), nullptr);
}

TEST_F(QtSaveDialogTest, AnswersWithNothingWhenThePersonTurnsAway) {
    ask();
    shownDialog()->reject();
    EXPECT_EQ(m_answers, 1);
    EXPECT_EQ(m_path, std::nullopt);
}

TEST_F(QtSaveDialogTest, IsTakenAwayWithoutAnAnswer) {
    ask();
    m_open.reset();
    EXPECT_EQ(shownDialog(), nullptr);
    EXPECT_EQ(m_answers, 0);
}

TEST_F(QtSaveDialogTest, BelongsToItsWindowAndGoesWithIt) {
    {
        QWindow window;
        window.show();
        ask(&window);
        ASSERT_NE(shownDialog(), nullptr);
        EXPECT_EQ(shownDialog()->windowHandle()->transientParent(), &window);
    }
    EXPECT_TRUE(tests::await([] { return shownDialog() == nullptr; }));
    EXPECT_EQ(m_answers, 0);
}

TEST_F(QtSaveDialogTest, MayBeTakenAwayInsideItsAnswer) {
    m_open = m_dialog.ask({}, nullptr, [this](const auto&) {
        m_open.reset();
        ++m_answers;
    });
    shownDialog()->reject();
    EXPECT_EQ(m_answers, 1);
}

} // namespace
} // namespace vantle
