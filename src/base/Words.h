// The program's texts, looked up in the loaded catalogues.
//
// Any thread. Without a catalogue each text is its source, which unit tests compare with.
#pragma once

#include <QCoreApplication>

namespace vantle {

/// `Words::tr("Logged %1 min")` looks one text up. A table holds texts as
/// `QT_TRANSLATE_NOOP("Words", "…")`; its user calls `Words::tr(text)`.
class Words {
    Q_DECLARE_TR_FUNCTIONS(Words)
};

} // namespace vantle
