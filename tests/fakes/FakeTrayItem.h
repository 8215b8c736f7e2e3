// A tray that remembers what it was given to show.
#pragma once

#include "platform/TrayItem.h"

namespace vantle::fakes {

class FakeTrayItem final : public TrayItem {
public:
    // TrayItem
    void setImage(const QIcon& image, bool isTemplate) override {
        const bool shownBefore = isShown();
        icon = image;
        iconIsTemplate = isTemplate;
        ++imagesSet;
        m_hasImage = true;
        if (isShown() != shownBefore) Q_EMIT shownChanged();
    }
    void setToolTip(const QString& text) override { toolTip = text; }
    [[nodiscard]] bool isShown() const override { return m_shown && m_hasImage; }
    [[nodiscard]] QRect geometry() const override { return place; }
    [[nodiscard]] bool isPlacePending() const override { return placePending; }

    /// The tray puts the item there.
    void moveTo(const QRect& frame) {
        place = frame;
        placePending = false;
        Q_EMIT placeChanged();
    }

    /// The tray comes or goes.
    void setShown(bool shown) {
        const bool shownBefore = isShown();
        m_shown = shown;
        if (isShown() != shownBefore) Q_EMIT shownChanged();
    }
    /// As it is before the program has given it an image; otherwise it has shown one already.
    void forgetImage() { m_hasImage = false; }
    void click(QPoint where) { Q_EMIT clicked(where); }

    QIcon icon;
    bool iconIsTemplate = false;
    int imagesSet = 0;
    QString toolTip;
    QRect place;
    bool placePending = false; ///< the tray takes its time

private:
    bool m_shown = true;
    bool m_hasImage = true;
};

} // namespace vantle::fakes
