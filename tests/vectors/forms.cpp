#include "vectors/forms.h"

namespace vantle::vectors {

const QList<Form>& allForms() {
    static const QList<Form> forms =
        QList<Form>(trackerForms())
        << autoRulesForm() << cardSlotForm() << choreographyForm() << durationsForm()
        << dwellEngineForm() << idleMonitorForm() << narrativeForm() << noteDigestForm()
        << overlayControlForm() << pagerForm() << personaForm() << recordsForm() << rendererForm()
        << rhythmMapForm() << rhythmSuperlativesForm() << skillsForm() << statisticsForm()
        << totalsForm() << weeksForm();
    return forms;
}

} // namespace vantle::vectors
