// Runs all cases of a form and tells what came of it.
#pragma once

#include "vectors/Form.h"

#include <QTextStream>

namespace vantle::vectors {

struct Tally {
    int cases = 0;
    int mismatches = 0;
    int doubtful = 0; ///< differ from a reading that the rules leave open
    int skipped = 0;
    [[nodiscard]] bool passed() const { return cases > skipped && mismatches == 0; }
};

/// Runs `cases` and writes each mismatch and a closing line to `out`.
Tally runCases(const Form& form, const QList<Case>& cases, QTextStream& out);

/// Loads the cases of `form` at `path` and runs them. Without a case that runs it has not passed.
Tally runForm(const Form& form, const QString& path, QTextStream& out);

} // namespace vantle::vectors
