// The window of floating surfaces: capsule, cards, panel, toast.
#pragma once

#include "platform/PanelHost.h"
#include "surfaces/panel/PanelRoot.h"

#include <QQuickView>
#include <QRegion>
#include <QVariantMap>

class QQmlEngine;

namespace vantle {

/// Transparent, borderless, above all other windows on every workspace, in no task bar or switcher.
/// It takes the keyboard only when a text field in it is clicked or the program says so, and
/// returns it afterwards. Outside its input region clicks reach the window below. Main thread.
///
/// On a desktop without input regions the window is cut to the bounds of its input region, since it
/// would otherwise take clicks around it. The view keeps the panel's size and position, so nothing
/// in it moves; its shadow is cut off.
class FloatingPanel : public QQuickView {
    Q_OBJECT
    /// The placement's distance from the top edge, for animations.
    Q_PROPERTY(int insetTop READ insetTop WRITE setInsetTop)

public:
    /// Both must outlive the panel.
    FloatingPanel(QQmlEngine& engine, PanelHost& host);
    ~FloatingPanel() override;

    /// Creates the view from its file and required properties. Returns false for an invalid file.
    /// Its root must be a PanelRoot, whose `composited` this window updates.
    [[nodiscard]] bool load(const QUrl& source, const QVariantMap& properties);
    /// Null before the view is loaded.
    [[nodiscard]] PanelRoot* root() const;

    /// Returns the placement with room for the view's shadow. Requires a view.
    [[nodiscard]] Placement withShadow(Placement ground, bool feelsPointer = true) const;

    /// Places the panel; the first call lets the host choose the kind of window.
    void setPlacement(const Placement& placement);
    [[nodiscard]] const Placement& placement() const { return m_placement; }
    /// Places the panel and shows it without keyboard focus.
    void showAt(const Placement& placement);

    /// The panel's place in px of the desktop; the window may be a part of it.
    [[nodiscard]] QRect frame() const { return m_placement.frame(); }
    [[nodiscard]] int insetTop() const { return m_placement.inset.y(); }
    void setInsetTop(int y);

    /// Sets the placement's `felt`. A change under a resting pointer counts as entering or leaving.
    void setInputRegion(const QRegion& region);
    [[nodiscard]] QRegion inputRegion() const;

    /// Whether transparent parts show the windows below.
    [[nodiscard]] bool isComposited() const { return m_composited; }

    /// Whether the pointer is in the input region. Asks the desktop, where it can tell.
    [[nodiscard]] bool pointerInside() const;
    /// Whether the pointer is in that part, in px from the panel's top left, inside the input
    /// region or not. False while hidden.
    [[nodiscard]] bool pointerInside(const QRegion& part) const;

    void takeKeyboard();
    /// Returns the keyboard to its previous owner. Hiding the panel does so too.
    void returnKeyboard();

Q_SIGNALS:
    /// A compositor came or went. Shape and view are updated; the owner places the panel again,
    /// without its shadow or with it.
    void compositedChanged();
    /// The pointer entered or left the input region.
    void pointerEntered();
    void pointerLeft();
    /// The keyboard was taken after takeKeyboard(): the user clicked another window.
    void keyboardLost();

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void exposeEvent(QExposeEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void followCompositing();
    void applyRegions();
    void fitWindow();
    void placeView();
    void takeKeyboardForField(QPointF place);

    PanelHost& m_host;
    Placement m_placement;
    QPoint m_offset; ///< of the window within the panel
    bool m_isPlaced = false;
    bool m_composited = true;
    bool m_hasKeyboard = false;
    bool m_wasExposed = false;
    bool m_pointerIsIn = false; ///< as last reported to the window
};

} // namespace vantle
