// One capsule: its rules and the properties for its view.
#pragma once

#include "app/Collaborators.h"
#include "surfaces/capsule/CapsuleGeometry.h"
#include "surfaces/capsule/CapsuleOpening.h"
#include "surfaces/capsule/CapsuleStage.h"
#include "surfaces/capsule/CapsuleText.h"
#include "surfaces/capsule/SkillChipLayout.h"
#include "surfaces/skills/SkillEditor.h"
#include "surfaces/skills/SkillListModel.h"

#include <QObject>
#include <QPointer>
#include <QRectF>
#include <QRegion>

#include <functional>
#include <memory>

namespace vantle {

class Preferences;
class ReducedMotion;

/// Rebuilt for each form and each screen; never switches form. Only the idle form offers to edit
/// skills, since only it has the callbacks. Main thread.
class NotchCapsule final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the controller.")
    Q_PROPERTY(bool idlePrompt READ idlePrompt CONSTANT)
    Q_PROPERTY(bool hasNotch READ hasNotch CONSTANT)
    Q_PROPERTY(double notchHeight READ notchHeight CONSTANT)
    Q_PROPERTY(double bottomRadius READ bottomRadius CONSTANT)
    Q_PROPERTY(QSizeF panelSize READ panelSize CONSTANT)
    Q_PROPERTY(double rowViewHeight READ rowViewHeight CONSTANT)
    Q_PROPERTY(QRectF restingFrame READ restingFrame CONSTANT)
    Q_PROPERTY(bool showAddRow READ showAddRow CONSTANT)
    Q_PROPERTY(QSizeF chipsSize READ chipsSize CONSTANT)
    Q_PROPERTY(QString toolTip READ toolTip CONSTANT)
    /// The skills. The session's is selected, or the one for the next start.
    Q_PROPERTY(vantle::SkillListModel* chips READ chips CONSTANT)
    Q_PROPERTY(QList<QRectF> chipFrames READ chipFrames CONSTANT)

    Q_PROPERTY(bool expanded READ isExpanded NOTIFY expandedChanged)
    /// The capsule's frame, or the target of its animation.
    Q_PROPERTY(QRectF frame READ frame NOTIFY frameChanged)
    Q_PROPERTY(QRectF openFrame READ openFrame NOTIFY frameChanged)
    Q_PROPERTY(QRectF hoverRect READ hoverRect NOTIFY frameChanged)
    Q_PROPERTY(QString skillLine READ skillLine NOTIFY labelChanged)
    Q_PROPERTY(QString clock READ clock NOTIFY labelChanged)
    Q_PROPERTY(QColor tint READ tint NOTIFY labelChanged)
    Q_PROPERTY(bool paused READ showsPaused NOTIFY labelChanged)
    /// The capsule is fading out and ignores input.
    Q_PROPERTY(bool leaving READ isLeaving NOTIFY leavingChanged)

    /// The chip whose menu is open; empty when none is.
    Q_PROPERTY(QString menuSkillId READ menuSkillId NOTIFY overlayChanged)
    Q_PROPERTY(QString menuSkillName READ menuSkillName NOTIFY overlayChanged)
    /// Whether a key opened the menu, which then highlights its first row.
    Q_PROPERTY(bool menuByKey READ isMenuByKey NOTIFY overlayChanged)
    Q_PROPERTY(vantle::SkillEditor* editor READ editor CONSTANT)
    /// The owner of the open menu or editor: a chip or the add row.
    Q_PROPERTY(QRectF overlayAnchor READ overlayAnchor NOTIFY overlayChanged)
    /// Where the view has placed the menu or the editor; empty when none is open.
    Q_PROPERTY(QRectF overlayRect READ overlayRect WRITE setOverlayRect NOTIFY overlayRectChanged)

public:
    struct Environment {
        Scheduler& scheduler;
        const Preferences& preferences;
        const ReducedMotion& reducedMotion;
        const CapsuleText& text;
    };
    /// The form and content of a capsule.
    struct Form {
        QPointer<TrackerCore> tracker;
        Skill skill;
        std::vector<Skill> skills;
        bool idlePrompt = false;
        std::function<void()> onTap;
        std::function<void(const QString& skillId)> onPick;
        std::optional<collaborators::SkillEditCallbacks> edit;
        QString clock = {}; ///< the clock's text without a tracker, for pictures of a capsule
    };

    NotchCapsule(const Environment& environment, Form form, const ScreenShape& screen);
    ~NotchCapsule() override;

    /// Sets the window, which must outlive the capsule or be reset to null.
    void setStage(CapsuleStage* stage) { m_stage = stage; }

    // Called by the controller

    void expand() { m_opening.expand(); }
    void collapse() { m_opening.collapse(); }
    void beginSessionFlash(Seconds hold) { m_opening.beginSessionFlash(hold); }
    void retag(const Skill& skill, bool flash);
    /// Closes and fades out; calls `completion` once invisible.
    void animateOut(std::function<void()> completion);
    /// Cancels everything scheduled and closes the editor without a result.
    void retire();

    // Called by the window

    /// The pointer rests in the strip, outside the window.
    void pointerRested();

    // Called by the view

    Q_INVOKABLE void setHovered(bool hovered);
    /// A click on the capsule outside its chips.
    Q_INVOKABLE void click();
    Q_INVOKABLE void pickSkill(const QString& skillId);
    Q_INVOKABLE void openMenu(const QString& skillId, bool byKey = false);
    Q_INVOKABLE void chipRequestsRename();
    Q_INVOKABLE void chipRequestsRecolor();
    Q_INVOKABLE void chipRequestsDelete();
    Q_INVOKABLE void chipRequestsAdd();
    /// The user dismissed the menu or the editor.
    Q_INVOKABLE void dismissOverlay();
    void setOverlayRect(const QRectF& rect);

    // State

    [[nodiscard]] const NotchMetrics& metrics() const { return m_metrics; }
    [[nodiscard]] bool idlePrompt() const { return m_form.idlePrompt; }
    [[nodiscard]] bool hasNotch() const { return m_metrics.hasNotch; }
    [[nodiscard]] double notchHeight() const { return m_metrics.notchHeight; }
    [[nodiscard]] double bottomRadius() const { return m_metrics.bottomRadius; }
    [[nodiscard]] QSizeF panelSize() const { return capsule::panelSize(m_metrics); }
    [[nodiscard]] double rowViewHeight() const { return m_content.rowViewHeight(); }
    [[nodiscard]] QRectF restingFrame() const { return capsule::restingFrame(m_metrics); }
    [[nodiscard]] bool showAddRow() const { return m_content.showAddRow; }
    [[nodiscard]] QSizeF chipsSize() const { return m_content.chips.value_or(QSizeF(0, 0)); }
    [[nodiscard]] QString toolTip() const;
    [[nodiscard]] SkillListModel* chips() { return &m_chips; }
    [[nodiscard]] QList<QRectF> chipFrames() const;

    [[nodiscard]] bool isExpanded() const { return m_opening.isExpanded(); }
    [[nodiscard]] QRectF frame() const { return isExpanded() ? m_openFrame : restingFrame(); }
    [[nodiscard]] QRectF openFrame() const { return m_openFrame; }
    [[nodiscard]] QRectF hoverRect() const;
    [[nodiscard]] QString skillLine() const;
    [[nodiscard]] const QString& clock() const { return m_clock; }
    [[nodiscard]] QColor tint() const { return QColor::fromRgb(m_form.skill.hexRGB); }
    [[nodiscard]] const Skill& skill() const { return m_form.skill; }
    [[nodiscard]] bool showsPaused() const { return m_showsPaused; }
    [[nodiscard]] bool isLeaving() const { return m_leaving; }
    [[nodiscard]] int collapseSuspendCount() const { return m_opening.collapseSuspendCount(); }

    [[nodiscard]] bool chipMayEdit() const { return m_form.edit.has_value(); }
    [[nodiscard]] const QString& menuSkillId() const { return m_menuSkillId; }
    [[nodiscard]] QString menuSkillName() const;
    [[nodiscard]] bool isMenuByKey() const { return m_menuByKey; }
    [[nodiscard]] SkillEditor* editor() { return &m_editor; }
    [[nodiscard]] QRectF overlayAnchor() const { return m_overlayAnchor; }
    [[nodiscard]] QRectF overlayRect() const { return m_overlayRect; }

    /// What feels the pointer beside the strip: nothing at rest.
    [[nodiscard]] QRegion inputRegion() const;
    /// The part of the strip that the open capsule does not cover.
    [[nodiscard]] QRect freeStrip() const;
    /// The visible part while open on a desktop without compositor.
    [[nodiscard]] QRegion opaqueRegion() const;

Q_SIGNALS:
    void expandedChanged();
    void frameChanged();
    void labelChanged();
    void leavingChanged();
    void overlayChanged();
    void overlayRectChanged();

private:
    void openedOrClosed();
    void refreshLabel();
    void recomputeWidth();
    void follow();
    [[nodiscard]] bool pointerInHoverRegion() const;

    /// Opens the editor for the skill whose menu is open.
    void presentEditor(SkillEditor::Fields fields);
    /// Makes room for the editor below `anchor`; call before it opens.
    void makeWay(const QRectF& anchor);
    void closeMenu();
    void commitEdit(const std::optional<QString>& id, const QString& name, std::uint32_t hexRGB);
    [[nodiscard]] const Skill* find(const QString& skillId) const;
    [[nodiscard]] QRectF chipRect(const QString& skillId) const;
    [[nodiscard]] QRectF addRowRect() const;

    Environment m_env;
    Form m_form;
    SkillChipLayout m_layout;
    SkillListModel m_chips;
    capsule::Content m_content;
    NotchMetrics m_metrics;
    QRectF m_openFrame;
    QString m_clock;
    bool m_showsPaused = false;
    bool m_leaving = false;
    CapsuleStage* m_stage = nullptr;

    QString m_menuSkillId;
    bool m_menuByKey = false;
    SkillEditor m_editor;
    QRectF m_overlayAnchor;
    QRectF m_overlayRect;

    CapsuleOpening m_opening;
    TimerHandle m_tickTimer; ///< set while a visible clock runs
    TimerHandle m_fade;
};

} // namespace vantle
