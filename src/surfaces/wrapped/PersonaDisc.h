// The picture of a persona on its page.
#pragma once

#include "review/PersonaCard.h"
#include "surfaces/kit/painters/BakedItem.h"

namespace vantle {

/// Fills the item; without a persona it shows the progress. Main thread.
class PersonaDisc : public vantle::BakedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(vantle::PersonaCard card READ card WRITE setCard NOTIFY changed)

public:
    explicit PersonaDisc(QQuickItem* parent = nullptr) : BakedItem(parent) {}

    [[nodiscard]] const PersonaCard& card() const { return m_card; }
    void setCard(const PersonaCard& card);

protected:
    void paint(QPainter& painter, double scale) override;

private:
    PersonaCard m_card;
};

} // namespace vantle
