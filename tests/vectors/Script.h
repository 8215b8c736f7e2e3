// Helpers for cases that are scripts: a list of operations, and what the world looks like after
// each.
#pragma once

#include "fakes/VirtualTime.h"
#include "vectors/Case.h"
#include "vectors/SymbolicIds.h"

#include <QJsonArray>
#include <QJsonObject>

#include <functional>

namespace vantle::vectors {

/// Plays `item.input.events`. `perform` does one operation and gives the step that describes what
/// came of it; `opening`, where a form has a step before the first operation, gives that one. The
/// ids that the code under test made are bound to the case's symbols after each step, later
/// operations get the real ones, and the answer `{"steps": [...]}` holds the symbols.
[[nodiscard]] QJsonValue
playScript(const Case& item, const std::function<QJsonObject(const QJsonObject& event)>& perform,
           const std::function<QJsonObject()>& opening = {});

/// Does `event` if it is `advance` or `shiftWall`, and tells whether it was. Timers fire at their
/// exact times; after each, the attached queues and then the posted work have run dry.
[[nodiscard]] bool passTime(fakes::VirtualTime& time, const QJsonObject& event);

/// The name of the operation.
[[nodiscard]] QString operation(const QJsonObject& event);

} // namespace vantle::vectors
