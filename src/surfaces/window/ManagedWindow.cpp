#include "surfaces/window/ManagedWindow.h"

#include "base/Heap.h"
#include "platform/PanelHost.h"
#include "platform/Preferences.h"
#include "platform/Screens.h"
#include "platform/WindowManager.h"
#include "surfaces/kit/tokens/Look.h"
#include "surfaces/window/SharedEngine.h"
#include "surfaces/window/WindowPlacement.h"
#include "surfaces/window/WindowShell.h"

#include <QQmlEngine>

namespace vantle {

namespace {

constexpr int kStripHeight = look::kLengths.stripHeight;
constexpr int kMinContentHeight = 320; // of a resizable window

/// How long a window must rest before its frame is saved, which is what a crash can lose.
constexpr Seconds kFrameRest{1.0};

} // namespace

ManagedWindow::ManagedWindow(const WindowEnvironment& environment, const WindowRules& rules,
                             WindowContent content)
    : m_env(environment)
    , m_rules(rules)
    , m_content(std::move(content)) {}

ManagedWindow::~ManagedWindow() {
    if (m_shell == nullptr) return;
    keepFrame();
    delete m_shell;
}

QWindow* ManagedWindow::window() const { return m_shell; }

bool ManagedWindow::show() {
    if (m_shell == nullptr && !open()) return false;
    m_env.windowManager.bringToUser(*m_shell);
    return true;
}

bool ManagedWindow::open() {
    auto shell = std::make_unique<WindowShell>(m_env.engine.acquire(), m_env.windowManager);
    // Queued, since it destroys the view that requests it.
    const auto closeLater = [window = QPointer(this)] {
        if (window) QMetaObject::invokeMethod(window, &ManagedWindow::close, Qt::QueuedConnection);
    };
    shell->setTitle(m_rules.title);
    if (!shell->load(m_rules, m_content.view, m_content.makeModel(closeLater),
                     m_env.host.isComposited()))
        return false;
    connect(shell.get(), &WindowShell::closeRequested, this, closeLater);
    connect(shell.get(), &WindowShell::quitRequested, this, [this] {
        if (m_env.quit) m_env.quit();
    });
    connect(
        &m_env.host, &PanelHost::compositedChanged, shell.get(),
        [window = shell.get(), &host = m_env.host] { window->setRounded(host.isComposited()); });
    const auto offerButtons = [window = shell.get(), &manager = m_env.windowManager] {
        window->setMinimisable(manager.canMinimise());
    };
    connect(&m_env.windowManager, &WindowManager::changed, shell.get(), offerButtons);
    offerButtons();
    connect(shell.get(), &WindowShell::fittingSizeChanged, this, &ManagedWindow::refit);
    m_shell = shell.release();
    place();
    for (const auto changed :
         {&QWindow::xChanged, &QWindow::yChanged, &QWindow::widthChanged, &QWindow::heightChanged})
        connect(m_shell, changed, this, &ManagedWindow::keepFrameSoon);
    return true;
}

QSize ManagedWindow::wantedSize() const {
    if (m_rules.contentSize.isEmpty()) return m_shell->fittingSize();
    return m_rules.contentSize + QSize(0, kStripHeight);
}

void ManagedWindow::place() {
    const auto screens = m_env.screens.inUseFirst();
    const QRectF area = screens.empty() ? QRectF() : screens.front().available;
    const QSize size = screens.empty() ? wantedSize() : windowplacement::fitted(wantedSize(), area);
    QRect frame = windowplacement::centred(size, area);
    if (m_rules.frame) {
        const auto kept = windowplacement::decode(m_rules.frame->read(m_env.preferences));
        if (kept) frame = windowplacement::onScreen(*kept, screens).value_or(frame);
    }
    if (m_rules.resizable) {
        m_shell->setMinimumSize(
            QSize(m_rules.minContentWidth, kMinContentHeight + kStripHeight).boundedTo(size));
    } else {
        m_shell->setMinimumSize(frame.size());
        m_shell->setMaximumSize(frame.size());
    }
    m_env.windowManager.place(*m_shell, frame);
    m_placedFrame = frame;
}

void ManagedWindow::refit() {
    if (m_shell == nullptr || m_rules.resizable || !m_rules.contentSize.isEmpty()) return;
    const auto screens = m_env.screens.all();
    const QRect wanted(m_shell->position(), m_shell->fittingSize());
    const QRect frame = windowplacement::onScreen(wanted, screens).value_or(wanted);
    // In an order that keeps the size within the bounds at each step.
    m_shell->setMinimumSize(frame.size().boundedTo(m_shell->size()));
    m_shell->setMaximumSize(frame.size().expandedTo(m_shell->size()));
    m_env.windowManager.place(*m_shell, frame);
    m_shell->setMinimumSize(frame.size());
    m_shell->setMaximumSize(frame.size());
}

void ManagedWindow::keepFrameSoon() {
    if (!m_rules.frame) return;
    m_frameTimer = m_env.scheduler.scheduleOnce(kFrameRest, [this] { keepFrame(); });
}

void ManagedWindow::keepFrame() {
    m_frameTimer.reset();
    // A window that was not moved saves nothing: erased data must not come back.
    if (!m_rules.frame || m_shell->geometry() == m_placedFrame) return;
    // A maximised window is maximised again.
    if (m_shell->windowStates() & (Qt::WindowMinimized | Qt::WindowFullScreen)) return;
    m_placedFrame = m_shell->geometry();
    m_rules.frame->write(m_env.preferences, windowplacement::encode(m_placedFrame));
}

void ManagedWindow::close() {
    if (m_shell == nullptr) return;
    keepFrame();
    WindowShell* const shell = std::exchange(m_shell, nullptr);
    shell->disconnect(this);
    if (m_content.willClose) m_content.willClose(shell->model());
    shell->hide();
    connect(shell, &QObject::destroyed, &trimHeap);
    shell->deleteLater();
    Q_EMIT closed();
}

} // namespace vantle
