#include "vectors/forms.h"

namespace vantle::vectors {

const QList<Form>& allForms() {
    static const QList<Form> forms = QList<Form>(trackerForms())
                                     << autoRulesForm() << cardSlotForm() << durationsForm()
                                     << dwellEngineForm() << idleMonitorForm() << narrativeForm()
                                     << noteDigestForm() << recordsForm() << skillsForm()
                                     << totalsForm() << weeksForm();
    return forms;
}

} // namespace vantle::vectors
