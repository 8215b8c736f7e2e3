// A language for tests: every letter of a text accented, a third more of it, and brackets around.
#pragma once

#include <QTranslator>

namespace vantle {

/// What it has not made, no translator reaches; what it makes fills the room that other languages
/// need. Any thread, once it is installed.
class PseudoLocale final : public QTranslator {
public:
    using QTranslator::QTranslator;

    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char* context, const char* source, const char* comment,
                                    int count) const override;

    /// "[Þàûšé]" for "Pause", with placeholders ("%1", "%n", "{project}") as they are.
    [[nodiscard]] static QString text(const QString& source);
};

} // namespace vantle
