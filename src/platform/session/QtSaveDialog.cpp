#include "platform/session/QtSaveDialog.h"

#include <QFileDialog>
#include <QLineEdit>
#include <QPointer>
#include <QStandardPaths>
#include <QWindow>

namespace vantle {

namespace {

/// The colours of the program's windows, for Qt's own dialog.
QPalette darkPalette() {
    const QColor ground(0x17, 0x17, 0x1D);
    const QColor well(0x0A, 0x0A, 0x0F);
    const QColor raised(0x26, 0x26, 0x2E);
    const QColor text(0xF2, 0xF2, 0xF2);
    const QColor quiet(0x8E, 0x8E, 0x90);
    const QColor accent(0x7A, 0x78, 0xFF);
    QPalette palette(text, raised, QColor(0x3A, 0x3A, 0x44), well, QColor(0x20, 0x20, 0x28), text,
                     Qt::white, well, ground);
    palette.setColor(QPalette::AlternateBase, ground);
    palette.setColor(QPalette::ToolTipBase, ground);
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::PlaceholderText, quiet);
    palette.setColor(QPalette::Highlight, accent);
    palette.setColor(QPalette::HighlightedText, well);
    palette.setColor(QPalette::Link, accent);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, quiet);
    return palette;
}

/// The font of the program's windows, or the desktop's where it is missing.
QFont windowFont(QFont desktops) {
    desktops.setFamilies({QStringLiteral("Inter"), desktops.family()});
    return desktops;
}

QString firstFolder(const SaveQuestion& question) {
    return question.folder.isEmpty()
               ? QStandardPaths::writableLocation(QStandardPaths::HomeLocation)
               : question.folder;
}

class OpenDialog final : public OpenSaveDialog {
public:
    OpenDialog(QFileDialog* dialog, std::shared_ptr<const bool> answered)
        : m_dialog(dialog)
        , m_answered(std::move(answered)) {}
    ~OpenDialog() override {
        // An answered dialog deletes itself.
        if (!*m_answered) delete m_dialog;
    }
    OpenDialog(const OpenDialog&) = delete;
    OpenDialog& operator=(const OpenDialog&) = delete;

private:
    const QPointer<QFileDialog> m_dialog; ///< null once deleted
    const std::shared_ptr<const bool> m_answered;
};

void placeAbove(QFileDialog& dialog, QWindow* window) {
    if (!window) return;
    dialog.setWindowModality(Qt::WindowModal);
    dialog.setWindowIcon(window->icon());
    dialog.winId(); // creates a window, which can have a transient parent
    dialog.windowHandle()->setTransientParent(window);
    QObject::connect(window, &QObject::destroyed, &dialog, [&dialog] {
        dialog.disconnect();
        dialog.hide();
        dialog.deleteLater();
    });
}

} // namespace

std::unique_ptr<OpenSaveDialog> QtSaveDialog::ask(const SaveQuestion& question, QWindow* above,
                                                  Answer answer) {
    auto* const dialog = new QFileDialog(nullptr, question.title, firstFolder(question));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setPalette(darkPalette());
    dialog->setFont(windowFont(dialog->font()));
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setFileMode(QFileDialog::AnyFile);
    dialog->setNameFilter(QStringLiteral("%1 (*.%2)").arg(question.kind, question.ending));
    dialog->setDefaultSuffix(question.ending);
    dialog->selectFile(question.suggestedName);
    // The completer's results come late from the disk and would then take a quick Return as a
    // choice. The desktop's own dialog has no such field.
    for (QLineEdit* const field : dialog->findChildren<QLineEdit*>())
        field->setCompleter(nullptr);
    placeAbove(*dialog, above);
    const auto answered = std::make_shared<bool>(false);
    QObject::connect(dialog, &QDialog::finished, dialog, [dialog, answer, answered](int result) {
        *answered = true;
        const QStringList chosen = dialog->selectedFiles();
        if (result == QDialog::Accepted && !chosen.isEmpty())
            answer(chosen.first());
        else
            answer(std::nullopt);
    });
    dialog->show();
    return std::make_unique<OpenDialog>(dialog, answered);
}

} // namespace vantle
