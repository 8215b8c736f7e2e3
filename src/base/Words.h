// The program's texts in the words of the catalogues that are installed.
//
// Any thread. Without a catalogue each text is its source, which is what unit tests read.
#pragma once

#include <QCoreApplication>

namespace vantle {

/// `Words::tr("Logged %1 min")` looks one text up. A table holds its texts by
/// `QT_TRANSLATE_NOOP("Words", "…")`, and who shows one calls `Words::tr(text)`.
class Words {
    Q_DECLARE_TR_FUNCTIONS(Words)
};

} // namespace vantle
