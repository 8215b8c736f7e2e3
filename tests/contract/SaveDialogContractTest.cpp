// What every save dialog promises.
#include "contract/Contract.h"
#include "fakes/FakeSaveDialog.h"
#include "platform/session/FakeFileChooser.h"
#include "platform/session/PortalSaveDialog.h"
#include "platform/session/QtSaveDialog.h"
#include "support/Await.h"
#include "support/QtPrinters.h"
#include "support/Text.h"

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QWindow>

namespace vantle {
namespace {

using tests::text;

/// A desktop with a user in front of its dialogs.
class DialogWorld {
public:
    virtual ~DialogWorld() = default;
    [[nodiscard]] virtual SaveDialog& dialog() = 0;
    /// Whether a dialog is on the screen by now.
    [[nodiscard]] virtual bool isShown() = 0;
    /// What the dialog on the screen says: its title, and the path that it suggests.
    [[nodiscard]] virtual QString title() = 0;
    [[nodiscard]] virtual QString suggestion() = 0;
    virtual void choose(const QString& path) = 0;
    virtual void turnAway() = 0;
    /// Lets the desktop do what is under way.
    virtual void settle() { tests::runFor(50); }
};

class FakeWorld final : public DialogWorld {
public:
    [[nodiscard]] SaveDialog& dialog() override { return m_dialog; }
    [[nodiscard]] bool isShown() override { return m_dialog.isOpen(); }
    [[nodiscard]] QString title() override { return m_dialog.asked.back().title; }
    [[nodiscard]] QString suggestion() override {
        const SaveQuestion& question = m_dialog.asked.back();
        return question.folder + QLatin1Char('/') + question.suggestedName;
    }
    void choose(const QString& path) override { m_dialog.choose(path); }
    void turnAway() override { m_dialog.choose(std::nullopt); }
    void settle() override {}

private:
    fakes::FakeSaveDialog m_dialog;
};

class QtWorld final : public DialogWorld {
public:
    [[nodiscard]] SaveDialog& dialog() override { return m_dialog; }
    [[nodiscard]] bool isShown() override { return shown() != nullptr; }
    [[nodiscard]] QString title() override { return shown()->windowTitle(); }
    [[nodiscard]] QString suggestion() override { return shown()->selectedFiles().value(0); }
    void choose(const QString& path) override {
        shown()->findChild<QLineEdit*>()->setText(path); // as it is typed
        static_cast<QDialog*>(shown())->accept();
    }
    void turnAway() override { shown()->reject(); }

private:
    [[nodiscard]] static QFileDialog* shown() {
        for (QWidget* const widget : QApplication::topLevelWidgets())
            if (auto* const dialog = qobject_cast<QFileDialog*>(widget);
                dialog && dialog->isVisible())
                return dialog;
        return nullptr;
    }

    QtSaveDialog m_dialog;
};

class PortalWorld final : public DialogWorld {
public:
    [[nodiscard]] SaveDialog& dialog() override { return m_dialog; }
    [[nodiscard]] bool isShown() override { return m_portal.isShown(); }
    [[nodiscard]] QString title() override { return m_portal.title; }
    [[nodiscard]] QString suggestion() override {
        const QByteArray folder = m_portal.options[text("current_folder")].toByteArray();
        return QString::fromUtf8(folder.constData()) + QLatin1Char('/') +
               m_portal.options[text("current_name")].toString();
    }
    void choose(const QString& path) override {
        m_portal.respond(0, QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded));
    }
    void turnAway() override { m_portal.respond(1, QString()); }

private:
    tests::FakeFileChooser m_portal;
    tests::BusClient m_client;
    QtSaveDialog m_otherwise; // which must not be asked
    PortalSaveDialog m_dialog{m_client.bus(), m_otherwise};
};

class SaveDialogContract : public contract::Contract<DialogWorld> {
protected:
    void ask(QWindow* above = nullptr) {
        m_open =
            world().dialog().ask(question(), above, [this](const std::optional<QString>& path) {
                ++m_answers;
                m_path = path;
            });
        EXPECT_EQ(m_answers, 0) << "within the call";
        ASSERT_TRUE(tests::await([this] { return world().isShown(); }));
    }
    [[nodiscard]] SaveQuestion question() const {
        return {text("Save image"), text("my week.png"), m_folder.path(), text("PNG image"),
                text("png")};
    }
    [[nodiscard]] QString at(const char* name) const { return m_folder.filePath(text(name)); }
    [[nodiscard]] bool awaitAnswer() {
        return tests::await([this] { return m_answers > 0; });
    }
    [[nodiscard]] bool awaitGone() {
        return tests::await([this] { return !world().isShown(); });
    }

    const QTemporaryDir m_folder;
    std::unique_ptr<OpenSaveDialog> m_open;
    int m_answers = 0;
    std::optional<QString> m_path;
};

INSTANTIATE_TEST_SUITE_P(, SaveDialogContract,
                         testing::Values(contract::maker<DialogWorld, FakeWorld>("Fake"),
                                         contract::maker<DialogWorld, QtWorld>("Qt"),
                                         contract::maker<DialogWorld, PortalWorld>("Portal")),
                         contract::kByName);

TEST_P(SaveDialogContract, SuggestsTheNameInTheFolder) {
    ask();
    EXPECT_EQ(world().title(), text("Save image"));
    EXPECT_EQ(world().suggestion(), at("my week.png"));
}

TEST_P(SaveDialogContract, AnswersOnceWithTheChosenPathAndIsGone) {
    ask();
    world().choose(at("Füße & 100 %.png"));
    ASSERT_TRUE(awaitAnswer());
    EXPECT_EQ(m_path, at("Füße & 100 %.png"));
    EXPECT_TRUE(awaitGone());
    world().settle();
    EXPECT_EQ(m_answers, 1);
}

TEST_P(SaveDialogContract, AnswersWithNothingWhenTheUserTurnsAway) {
    ask();
    world().turnAway();
    ASSERT_TRUE(awaitAnswer());
    EXPECT_EQ(m_path, std::nullopt);
    EXPECT_TRUE(awaitGone());
}

TEST_P(SaveDialogContract, IsTakenAwayWithoutAnAnswer) {
    ask();
    m_open.reset();
    EXPECT_TRUE(awaitGone());
    world().settle();
    EXPECT_EQ(m_answers, 0);
}

TEST_P(SaveDialogContract, GoesWithItsWindowAndWithoutAnAnswer) {
    {
        QWindow window;
        window.create();
        ask(&window);
    }
    EXPECT_TRUE(awaitGone());
    world().settle();
    EXPECT_EQ(m_answers, 0);
    m_open.reset(); // what is gone may be taken away
}

TEST_P(SaveDialogContract, MayBeTakenAwayInsideItsAnswer) {
    bool answered = false;
    m_open = world().dialog().ask(question(), nullptr, [&](const auto&) {
        m_open.reset();
        answered = true;
    });
    ASSERT_TRUE(tests::await([this] { return world().isShown(); }));
    world().turnAway();
    EXPECT_TRUE(tests::await([&] { return answered; }));
}

TEST_P(SaveDialogContract, MayAskAgainInsideItsAnswer) {
    m_open = world().dialog().ask(question(), nullptr, [this](const auto&) {
        m_open.reset();
        m_open = world().dialog().ask(question(), nullptr, [this](const auto& path) {
            ++m_answers;
            m_path = path;
        });
    });
    ASSERT_TRUE(tests::await([this] { return world().isShown(); }));
    world().turnAway();
    world().settle();
    ASSERT_TRUE(tests::await([this] { return world().isShown(); }));
    world().choose(at("again.png"));
    ASSERT_TRUE(awaitAnswer());
    EXPECT_EQ(m_path, at("again.png"));
}

} // namespace
} // namespace vantle
