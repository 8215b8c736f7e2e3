#include "vectors/forms.h"

namespace vantle::vectors {

const QList<Form>& allForms() {
    static const QList<Form> forms =
        QList<Form>{
            durationsForm(), //
            idleMonitorForm(), recordsForm(), skillsForm(), totalsForm(), weeksForm(),
        } +
        trackerForms();
    return forms;
}

} // namespace vantle::vectors
