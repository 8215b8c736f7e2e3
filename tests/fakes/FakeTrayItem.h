// A tray that remembers what it was given to show.
#pragma once

#include "platform/TrayItem.h"

namespace vantle::fakes {

class FakeTrayItem final : public TrayItem {
public:
    // TrayItem
    void setImage(const QIcon& image, bool isTemplate) override {
        icon = image;
        iconIsTemplate = isTemplate;
        ++imagesSet;
    }
    void setToolTip(const QString& text) override { toolTip = text; }
    [[nodiscard]] bool isShown() const override { return m_shown; }
    [[nodiscard]] QRect geometry() const override { return place; }

    /// The tray comes or goes.
    void setShown(bool shown) {
        m_shown = shown;
        Q_EMIT shownChanged();
    }
    void click(QPoint where) { Q_EMIT clicked(where); }

    QIcon icon;
    bool iconIsTemplate = false;
    int imagesSet = 0;
    QString toolTip;
    QRect place;

private:
    bool m_shown = true;
};

} // namespace vantle::fakes
