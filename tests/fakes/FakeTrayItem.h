// A tray that records what it shows.
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
    void setMenu(const QList<TrayMenuEntry>& entries) override { menu = entries; }
    [[nodiscard]] bool isShown() const override { return m_shown && m_hasImage; }
    [[nodiscard]] QRect geometry() const override { return place; }
    [[nodiscard]] bool isPlacePending() const override { return placePending; }
    [[nodiscard]] bool isOnLightGround() const override { return m_onLightGround; }

    /// The tray moves the item there.
    void moveTo(const QRect& frame) {
        place = frame;
        placePending = false;
        Q_EMIT placeChanged();
    }

    /// The bar becomes light or dark.
    void setOnLightGround(bool light) {
        m_onLightGround = light;
        Q_EMIT groundChanged();
    }

    /// The tray appears or disappears.
    void setShown(bool shown) {
        const bool shownBefore = isShown();
        m_shown = shown;
        if (isShown() != shownBefore) Q_EMIT shownChanged();
    }
    /// Resets to the state before the first image.
    void forgetImage() { m_hasImage = false; }
    void click(QPoint where) { Q_EMIT clicked(where); }
    /// The user chooses the menu entry with that text.
    bool choose(const QString& line) {
        for (const TrayMenuEntry& entry : menu)
            if (entry.text == line) {
                const auto run = entry.choose;
                run();
                return true;
            }
        return false;
    }
    [[nodiscard]] QStringList menuTexts() const {
        QStringList texts;
        for (const TrayMenuEntry& entry : menu)
            texts << entry.text;
        return texts;
    }

    QIcon icon;
    bool iconIsTemplate = false;
    int imagesSet = 0;
    QString toolTip;
    QList<TrayMenuEntry> menu;
    QRect place;
    bool placePending = false; ///< the tray has not placed the item yet

private:
    bool m_shown = true;
    bool m_hasImage = true;
    bool m_onLightGround = false;
};

} // namespace vantle::fakes
