// All personas, and the progress towards one.
#pragma once

#include "review/PersonaCard.h"

#include <QObject>
#include <QVariantList>

namespace vantle {

/// Cards with a name, or with what they show for a lead. Main thread.
class PersonaSamples : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QVariantList cards READ cards CONSTANT)

public:
    using QObject::QObject;
    [[nodiscard]] static QVariantList cards();
};

} // namespace vantle
