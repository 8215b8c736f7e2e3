// The drivers, one per file. Declare a new one here and list it in forms.cpp.
#pragma once

#include "vectors/Form.h"

namespace vantle::vectors {

[[nodiscard]] Form autoRulesForm();
[[nodiscard]] Form cardSlotForm();
[[nodiscard]] Form choreographyForm();
[[nodiscard]] Form durationsForm();
[[nodiscard]] Form dwellEngineForm();
[[nodiscard]] Form idleMonitorForm();
[[nodiscard]] Form narrativeForm();
[[nodiscard]] Form noteDigestForm();
[[nodiscard]] Form overlayControlForm();
[[nodiscard]] Form pagerForm();
[[nodiscard]] Form personaForm();
[[nodiscard]] Form recordsForm();
[[nodiscard]] Form rendererForm();
[[nodiscard]] Form rhythmMapForm();
[[nodiscard]] Form rhythmSuperlativesForm();
[[nodiscard]] Form skillsForm();
[[nodiscard]] Form statisticsForm();
[[nodiscard]] Form totalsForm();
[[nodiscard]] Form weeksForm();

/// tracker, session_log, recovery and hand_logging: scripts on one world.
[[nodiscard]] QList<Form> trackerForms();

} // namespace vantle::vectors
