// How the pages of a review move, as cases have it.
#pragma once

#include <QJsonObject>
#include <QString>

namespace vantle::vectors {

[[nodiscard]] QJsonValue reviewMotion(const QString& kind, const QJsonObject& input);

} // namespace vantle::vectors
