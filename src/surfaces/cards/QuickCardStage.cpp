#include "surfaces/cards/QuickCardStage.h"

#include "base/Words.h"
#include "surfaces/cards/CardPlacement.h"
#include "surfaces/panel/FloatingPanel.h"

#include <QGuiApplication>
#include <QPropertyAnimation>
#include <QQmlEngine>
#include <QQuickItem>

#include <algorithm>
#include <utility>

namespace vantle {

namespace {

QUrl sourceOf(CardView view) {
    const auto named = [](const char* name) {
        return QUrl(QStringLiteral("qrc:/qt/qml/Vantle/Cards/%1.qml").arg(QLatin1String(name)));
    };
    switch (view) {
    case CardView::StopSummary:
        return named("StopSummaryView");
    case CardView::RecoveryNotice:
        return named("RecoveryNoticeView");
    case CardView::TagPrompt:
        return named("TagPromptView");
    case CardView::CorrectionPrompt:
        return named("CorrectionPromptView");
    case CardView::RetagToast:
        return named("RetagToastView");
    }
    Q_UNREACHABLE();
}

/// The title by which window managers, assistive tools and tests find the window.
QString titleOf(CardView view) {
    switch (view) {
    case CardView::StopSummary:
        return Words::tr("Vantle Session Summary");
    case CardView::RecoveryNotice:
        return Words::tr("Vantle Recovery");
    case CardView::TagPrompt:
    case CardView::CorrectionPrompt:
        return Words::tr("Vantle Question");
    case CardView::RetagToast:
        return Words::tr("Vantle Saved Time");
    }
    Q_UNREACHABLE();
}

/// Rows and columns lay out only before a frame is drawn, which is too late for measuring.
void arrange(QQuickItem& item) {
    const QList<QQuickItem*> children = item.childItems();
    for (QQuickItem* child : children)
        arrange(*child);
    item.ensurePolished();
}

/// A card in its window, which is larger by the room for the shadow.
class QuickCardPanel final : public CardPanel {
public:
    /// Requires a loaded view; takes ownership of the panel.
    QuickCardPanel(FloatingPanel& panel, bool feelsPointer)
        : m_panel(&panel)
        , m_feelsPointer(feelsPointer)
        , m_placement{.size = root().ground().size()}
        , m_compositing(
              QObject::connect(m_panel, &FloatingPanel::compositedChanged, [this] { place(); })) {}

    ~QuickCardPanel() override {
        QObject::disconnect(m_compositing);
        if (!m_panel) return;
        m_panel->hide();
        // Deferred, since it may be handling an event of the user.
        m_panel->deleteLater();
    }

    [[nodiscard]] QSize size() const override { return m_placement.size; }

    void showAt(const Placement& placement) override {
        delete m_glide;
        m_placement = placement;
        m_isUp = true;
        place();
        root().setUp(true);
    }

    void moveTo(const Placement& placement) override {
        delete m_glide;
        const int from = m_panel->insetTop();
        m_placement = placement;
        m_glide = new QPropertyAnimation(m_panel, "insetTop", m_panel);
        m_glide->setDuration(root().moveTime());
        m_glide->setEasingCurve(QEasingCurve::OutCubic);
        m_glide->setStartValue(from);
        m_glide->setEndValue(placement.inset.y());
        Placement start = inWindow();
        start.inset.setY(from);
        m_panel->setPlacement(start);
        m_glide->start(QAbstractAnimation::DeleteWhenStopped);
    }

    [[nodiscard]] QRect frame() const override { return m_placement.ground(); }
    void takeKeyboard() override { m_panel->takeKeyboard(); }
    void returnKeyboard() override { m_panel->returnKeyboard(); }

    /// Lets the window delete itself once it is invisible.
    void fade() {
        m_panel->returnKeyboard();
        if (!m_panel->isVisible()) return;
        QObject::disconnect(m_compositing);
        m_panel->setInputRegion(QRegion());
        QObject::connect(&root(), &PanelRoot::gone, m_panel, &QObject::deleteLater);
        root().setUp(false);
        m_panel = nullptr;
    }

private:
    /// Places the window around the card, with room for the shadow only with a compositor.
    void place() {
        if (m_isUp) m_panel->showAt(inWindow());
    }
    [[nodiscard]] Placement inWindow() const {
        return m_panel->withShadow(m_placement, m_feelsPointer);
    }
    [[nodiscard]] PanelRoot& root() const { return *m_panel->root(); }

    FloatingPanel* m_panel;
    const bool m_feelsPointer;
    Placement m_placement; ///< of the card
    bool m_isUp = false;
    QMetaObject::Connection m_compositing;
    QPointer<QPropertyAnimation> m_glide;
};

} // namespace

QuickCardStage::QuickCardStage(Environment environment) : m_env(std::move(environment)) {
    connect(&m_env.screens, &Screens::changed, this, &CardStage::cardScreenChanged);
}

QuickCardStage::~QuickCardStage() {
    for (const auto& window : m_windows)
        delete window.data();
}

std::optional<ScreenShape> QuickCardStage::cardScreen() const {
    auto screens = m_env.screens.inUseFirst();
    if (screens.empty()) return std::nullopt;
    const auto isUp = [](const auto& window) { return window && window->isVisible(); };
    if (std::ranges::any_of(m_windows, isUp))
        screens = startingWith(m_screenFrame, std::move(screens));
    return screens.front();
}

std::unique_ptr<CardPanel> QuickCardStage::raise(CardView view, std::shared_ptr<QObject> model) {
    const auto chosen = cardScreen();
    if (!chosen) return nullptr;
    m_screenFrame = chosen->frame;
    const bool isToast = view == CardView::RetagToast;
    QVariantMap properties{{QStringLiteral("model"), QVariant::fromValue(model.get())}};
    if (!isToast)
        properties.insert(QStringLiteral("groundWidth"),
                          cardplacement::cardWidth(chosen->available.toRect()));
    auto engine = m_env.engine();
    auto panel = std::make_unique<FloatingPanel>(*engine, m_env.panelHost);
    if (!panel->load(sourceOf(view), properties)) return nullptr;
    arrange(*panel->rootObject());
    panel->setTitle(titleOf(view));
    std::erase_if(m_windows, [](const auto& window) { return window.isNull(); });
    m_windows.emplace_back(panel.get());
    // Keeps both until the view has faded out.
    QObject::connect(panel.get(), &QObject::destroyed,
                     [model = std::move(model), engine = std::move(engine)] {});
    return std::make_unique<QuickCardPanel>(*panel.release(), !isToast);
}

void QuickCardStage::dismiss(std::unique_ptr<CardPanel> panel) {
    static_cast<QuickCardPanel&>(*panel).fade();
}

std::vector<QRect> QuickCardStage::panelFrames() const {
    std::vector<QRect> frames;
    for (const QWindow* window : QGuiApplication::allWindows()) {
        const auto* const panel = qobject_cast<const FloatingPanel*>(window);
        if (!panel || !panel->isVisible()) continue;
        // Toasts and fading cards let input through, so others need not avoid them.
        const QRect felt = panel->inputRegion().boundingRect();
        if (!felt.isEmpty()) frames.push_back(felt.translated(panel->frame().topLeft()));
    }
    return frames;
}

} // namespace vantle
