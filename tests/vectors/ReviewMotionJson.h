// The JSON form of a review's animations in cases.
#pragma once

#include <QJsonObject>
#include <QString>

namespace vantle::vectors {

[[nodiscard]] QJsonValue reviewMotion(const QString& kind, const QJsonObject& input);

} // namespace vantle::vectors
