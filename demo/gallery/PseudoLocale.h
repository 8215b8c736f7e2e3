// The pseudo-locale: accented letters, a third more text, brackets.
#pragma once

#include <QTranslator>

namespace vantle {

/// Text that it does not change is not translatable; text that it changes needs the room of other
/// languages. Any thread, once installed.
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
