// Cases that are scripts: operations and the state after each.
#pragma once

#include "fakes/VirtualTime.h"
#include "vectors/Case.h"
#include "vectors/SymbolicIds.h"

#include <QJsonArray>
#include <QJsonObject>

#include <functional>

namespace vantle::vectors {

/// Runs `item.input.events`. `perform` runs one operation and returns the step that describes its
/// effect; `opening` returns the step before the first operation, if the form has one. New ids of
/// the code under test are bound to the case's symbols after each step; later operations get the
/// real ids, and the answer `{"steps": [...]}` has the symbols.
[[nodiscard]] QJsonValue
playScript(const Case& item, const std::function<QJsonObject(const QJsonObject& event)>& perform,
           const std::function<QJsonObject()>& opening = {});

/// Runs `event` if it is `advance` or `shiftWall`, and returns whether it was. Timers fire at their
/// exact times; after each, queues and posted work run until none is left.
[[nodiscard]] bool passTime(fakes::VirtualTime& time, const QJsonObject& event);

/// The name of the operation.
[[nodiscard]] QString operation(const QJsonObject& event);

} // namespace vantle::vectors
