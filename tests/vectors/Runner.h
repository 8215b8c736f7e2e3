// The runner of a form's cases.
#pragma once

#include "vectors/Form.h"

#include <QTextStream>

namespace vantle::vectors {

struct Tally {
    int cases = 0;
    int mismatches = 0;
    int doubtful = 0; ///< differ only in an open interpretation
    int skipped = 0;
    [[nodiscard]] bool passed() const { return cases > skipped && mismatches == 0; }
};

/// Runs `cases` and writes each mismatch and a summary to `out`.
Tally runCases(const Form& form, const QList<Case>& cases, QTextStream& out);

/// Loads and runs the cases of `form` at `path`. Fails when no case ran.
Tally runForm(const Form& form, const QString& path, QTextStream& out);

} // namespace vantle::vectors
