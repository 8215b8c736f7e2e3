// One capsule as it is on show: its rules and what its view shows of them.
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

/// Built anew for each form and each screen; never changes from one form into the other. The
/// editing of skills is offered in the idle form alone, since there the capsule has callbacks for
/// it. Main thread.
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
    /// The skills; the session's is selected, or the one that a start would take.
    Q_PROPERTY(vantle::SkillListModel* chips READ chips CONSTANT)
    Q_PROPERTY(QList<QRectF> chipFrames READ chipFrames CONSTANT)

    Q_PROPERTY(bool expanded READ isExpanded NOTIFY expandedChanged)
    /// Where the capsule is or is moving to.
    Q_PROPERTY(QRectF frame READ frame NOTIFY frameChanged)
    Q_PROPERTY(QRectF openFrame READ openFrame NOTIFY frameChanged)
    Q_PROPERTY(QRectF hoverRect READ hoverRect NOTIFY frameChanged)
    Q_PROPERTY(QString skillLine READ skillLine NOTIFY labelChanged)
    Q_PROPERTY(QString clock READ clock NOTIFY labelChanged)
    Q_PROPERTY(QColor tint READ tint NOTIFY labelChanged)
    Q_PROPERTY(bool paused READ showsPaused NOTIFY labelChanged)
    /// The capsule is fading away, and deaf.
    Q_PROPERTY(bool leaving READ isLeaving NOTIFY leavingChanged)

    /// The chip whose menu is open; empty when none is.
    Q_PROPERTY(QString menuSkillId READ menuSkillId NOTIFY overlayChanged)
    Q_PROPERTY(QString menuSkillName READ menuSkillName NOTIFY overlayChanged)
    Q_PROPERTY(vantle::SkillEditor* editor READ editor CONSTANT)
    /// What menu or editor hang below: a chip, or the add row.
    Q_PROPERTY(QRectF overlayAnchor READ overlayAnchor NOTIFY overlayChanged)
    /// Where the view has put the menu or the editor; empty when none is open.
    Q_PROPERTY(QRectF overlayRect READ overlayRect WRITE setOverlayRect NOTIFY overlayRectChanged)

public:
    struct Environment {
        Scheduler& scheduler;
        const Preferences& preferences;
        const ReducedMotion& reducedMotion;
        const CapsuleText& text;
    };
    /// What is on show.
    struct Form {
        QPointer<TrackerCore> tracker;
        Skill skill;
        std::vector<Skill> skills;
        bool idlePrompt = false;
        std::function<void()> onTap;
        std::function<void(const QString& skillId)> onPick;
        std::optional<collaborators::SkillEditCallbacks> edit;
        QString clock = {}; ///< what it reads without a tracker: for pictures of a capsule
    };

    NotchCapsule(const Environment& environment, Form form, const ScreenShape& screen);
    ~NotchCapsule() override;

    /// The window, once there is one. It must outlive the capsule or be taken away with null.
    void setStage(CapsuleStage* stage) { m_stage = stage; }

    // Commands of the controller

    void expand() { m_opening.expand(); }
    void collapse() { m_opening.collapse(); }
    void beginSessionFlash(Seconds hold) { m_opening.beginSessionFlash(hold); }
    void retag(const Skill& skill, bool flash);
    /// Closes and fades; `completion` is called once it is gone from sight.
    void animateOut(std::function<void()> completion);
    /// Gives up all that is planned, and closes the editor without a result.
    void retire();

    // What the window reports

    /// The pointer rests in the strip, where no window of ours feels it.
    void pointerRested();

    // What the view reports

    Q_INVOKABLE void setHovered(bool hovered);
    /// A click on the capsule beside its chips.
    Q_INVOKABLE void click();
    Q_INVOKABLE void pickSkill(const QString& skillId);
    Q_INVOKABLE void openMenu(const QString& skillId);
    Q_INVOKABLE void chipRequestsRename();
    Q_INVOKABLE void chipRequestsRecolor();
    Q_INVOKABLE void chipRequestsDelete();
    Q_INVOKABLE void chipRequestsAdd();
    /// The person turned away from the menu or the editor.
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
    [[nodiscard]] SkillEditor* editor() { return &m_editor; }
    [[nodiscard]] QRectF overlayAnchor() const { return m_overlayAnchor; }
    [[nodiscard]] QRectF overlayRect() const { return m_overlayRect; }

    /// What feels the pointer beside the strip: nothing at rest.
    [[nodiscard]] QRegion inputRegion() const;
    /// The strip at the screen's edge, where the open capsule does not cover it; else empty.
    [[nodiscard]] QRect freeStrip() const;
    /// What is there at all, while it is open, where the desktop mixes no transparency.
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
    /// To be called before the editor opens below `anchor`.
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
    SkillEditor m_editor;
    QRectF m_overlayAnchor;
    QRectF m_overlayRect;

    CapsuleOpening m_opening;
    TimerHandle m_tickTimer; ///< there exactly while a running clock can be seen
    TimerHandle m_fade;
};

} // namespace vantle
