#include "platform/session/QtSaveDialog.h"

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
                              above, [this](const std::optional<QString>& path) { m_path = path; });
    }

    const QTemporaryDir m_folder;
    QtSaveDialog m_dialog;
    std::unique_ptr<OpenSaveDialog> m_open;
    std::optional<QString> m_path;
};

TEST_F(QtSaveDialogTest, ShowsFilesOfTheKind) {
    ask();
    ASSERT_NE(shownDialog(), nullptr);
    EXPECT_EQ(shownDialog()->selectedNameFilter(), QStringLiteral("PNG image (*.png)"));
}

TEST_F(QtSaveDialogTest, AddsTheEndingThatWasNotTyped) {
    ask();
    shownDialog()->findChild<QLineEdit*>()->setText(m_folder.filePath(QStringLiteral("mine")));
    static_cast<QDialog*>(shownDialog())->accept();
    EXPECT_EQ(m_path, m_folder.filePath(QStringLiteral("mine.png")));
}

TEST_F(QtSaveDialogTest, LeavesReturnToWhatWasTyped) {
    ask();
    const auto fields = shownDialog()->findChildren<QLineEdit*>();
    ASSERT_FALSE(fields.isEmpty());
    for (const QLineEdit* field : fields)
        EXPECT_EQ(field->completer(), nullptr);
}

TEST_F(QtSaveDialogTest, StandsAboveItsWindow) {
    QWindow window;
    window.show();
    ask(&window);
    ASSERT_NE(shownDialog(), nullptr);
    EXPECT_EQ(shownDialog()->windowHandle()->transientParent(), &window);
}

} // namespace
} // namespace vantle
