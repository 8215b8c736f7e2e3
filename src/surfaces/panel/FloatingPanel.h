// The window of everything that floats above the desktop: the capsule, the cards, the toast.
#pragma once

#include "platform/PanelHost.h"
#include "surfaces/panel/PanelRoot.h"

#include <QQuickView>
#include <QRegion>
#include <QVariantMap>

class QQmlEngine;

namespace vantle {

/// A transparent window without a frame, above all others and on every workspace, in no task bar
/// and no switcher. It never takes the keyboard by being shown or clicked: only when a text field
/// in it is clicked, or when told to, and then it gives the keyboard back. Where it is not told to
/// feel the pointer, clicks reach the window below. Main thread.
///
/// Where the desktop knows no input regions the window is cut to the bounds of what is to feel the
/// pointer, else it would swallow clicks around it. The view keeps the size and the place of the
/// whole panel then, so that nothing in it moves; its shadow is cut away.
class FloatingPanel : public QQuickView {
    Q_OBJECT
    /// The placement's distance from the top edge; for animations.
    Q_PROPERTY(int insetTop READ insetTop WRITE setInsetTop)

public:
    /// Both must outlive the panel.
    FloatingPanel(QQmlEngine& engine, PanelHost& host);
    ~FloatingPanel() override;

    /// Makes the view from its file and its required properties. False when the file is no good.
    /// Its root is a PanelRoot, whose `composited` is kept up to date.
    [[nodiscard]] bool load(const QUrl& source, const QVariantMap& properties);
    /// Null until the view is loaded.
    [[nodiscard]] PanelRoot* root() const;

    /// The ground's placement with the room that the view's shadow takes around it. Requires a
    /// view.
    [[nodiscard]] Placement withShadow(Placement ground, bool feelsPointer = true) const;

    /// Puts the panel there; the host decides by which window before the first time.
    void setPlacement(const Placement& placement);
    [[nodiscard]] const Placement& placement() const { return m_placement; }
    /// The same, and shows it without taking the keyboard.
    void showAt(const Placement& placement);

    /// Where the panel stands, in px of the desktop; the window may be only a part of it.
    [[nodiscard]] QRect frame() const { return m_placement.frame(); }
    [[nodiscard]] int insetTop() const { return m_placement.inset.y(); }
    void setInsetTop(int y);

    /// The placement's `felt`: a change under a resting pointer counts as entering or leaving.
    void setInputRegion(const QRegion& region);
    [[nodiscard]] QRegion inputRegion() const;

    /// Whether what is transparent shows what lies below.
    [[nodiscard]] bool isComposited() const { return m_composited; }

    /// Whether the pointer is where the panel feels it. Asks the desktop, where that can tell.
    [[nodiscard]] bool pointerInside() const;
    /// Whether it is in that part, in px from the panel's top left, felt or not. False while the
    /// panel is hidden.
    [[nodiscard]] bool pointerInside(const QRegion& part) const;

    void takeKeyboard();
    /// Gives the keyboard back to who had it. Hiding the panel does that as well.
    void returnKeyboard();

Q_SIGNALS:
    /// A compositor came or went. Shape and view have followed; the owner puts the panel where it
    /// stands now, without its shadow or with it.
    void compositedChanged();
    /// The pointer came into the part that feels it, or left it.
    void pointerEntered();
    void pointerLeft();
    /// The keyboard went elsewhere after takeKeyboard(): the person clicked another window.
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
    QPoint m_offset; ///< of the window within the frame
    bool m_isPlaced = false;
    bool m_composited = true;
    bool m_hasKeyboard = false;
    bool m_wasExposed = false;
    bool m_pointerIsIn = false; ///< as the window was told
};

} // namespace vantle
