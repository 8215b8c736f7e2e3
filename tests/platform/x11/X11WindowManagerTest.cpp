#include "platform/x11/X11WindowManager.h"

#include "platform/x11/OwnServer.h"
#include "support/Await.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace vantle {
namespace {

/// A window manager as far as it tells of itself. It goes as one that crashes: what it has put on
/// the root window stays there.
class ToldManager {
public:
    ToldManager(const QByteArray& display, const QByteArray& name,
                const std::vector<QByteArray>& supported)
        : m_x11(display) {
        std::vector<std::uint32_t> atoms;
        for (const QByteArray& one : supported)
            atoms.push_back(atom(one));
        const xcb_window_t check = xcb_generate_id(m_x11.xcb());
        xcb_create_window(m_x11.xcb(), XCB_COPY_FROM_PARENT, check, m_x11.root(), 0, 0, 1, 1, 0,
                          XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
        set(m_x11.root(), "_NET_SUPPORTED", XCB_ATOM_ATOM, atoms);
        for (const xcb_window_t holder : {m_x11.root(), check})
            set(holder, "_NET_SUPPORTING_WM_CHECK", XCB_ATOM_WINDOW, {check});
        xcb_change_property(m_x11.xcb(), XCB_PROP_MODE_REPLACE, check, atom("_NET_WM_NAME"),
                            atom("UTF8_STRING"), 8, static_cast<std::uint32_t>(name.size()),
                            name.constData());
        tests::catchUp(m_x11);
    }

private:
    xcb_atom_t atom(const QByteArray& name) {
        return m_x11
            .reply<xcb_intern_atom_reply>(xcb_intern_atom(
                m_x11.xcb(), 0, static_cast<std::uint16_t>(name.size()), name.constData()))
            ->atom;
    }
    void set(xcb_window_t window, const QByteArray& name, xcb_atom_t type,
             const std::vector<std::uint32_t>& values) {
        xcb_change_property(m_x11.xcb(), XCB_PROP_MODE_REPLACE, window, atom(name), type, 32,
                            static_cast<std::uint32_t>(values.size()), values.data());
    }

    X11Connection m_x11;
};

class X11WindowManagerTest : public testing::Test {
protected:
    X11WindowManagerTest() {
        QObject::connect(&m_manager, &WindowManager::changed,
                         [this] { m_told.push_back(m_manager.canMinimise()); });
    }
    /// Another window manager takes over.
    void takeOver(const QByteArray& name, const std::vector<QByteArray>& supported) {
        m_running = std::make_unique<ToldManager>(m_server.display(), name, supported);
        tests::catchUp(m_x11);
    }

    tests::OwnServer m_server;
    X11Connection m_x11{m_server.display()};
    X11WindowManager m_manager{m_x11};
    std::unique_ptr<ToldManager> m_running;
    QList<bool> m_told;
};

TEST_F(X11WindowManagerTest, WindowsDoNotMinimiseWithoutAWindowManager) {
    EXPECT_FALSE(m_manager.canMinimise());
}

TEST_F(X11WindowManagerTest, OneThatListsTheActionMinimises) {
    takeOver("Xfwm4", {"_NET_WM_STATE_HIDDEN", "_NET_WM_ACTION_MINIMIZE"});
    EXPECT_TRUE(m_manager.canMinimise());
}

TEST_F(X11WindowManagerTest, HiddenStateAloneIsNoPromise) {
    for (const char* name : {"i3", "bspwm"}) {
        takeOver(name, {"_NET_WM_STATE_HIDDEN", "_NET_WM_MOVERESIZE"});
        EXPECT_FALSE(m_manager.canMinimise()) << name;
    }
}

TEST_F(X11WindowManagerTest, SomeMinimiseWithoutListingIt) {
    takeOver("awesome", {"_NET_WM_STATE_HIDDEN"});
    EXPECT_TRUE(m_manager.canMinimise());
}

TEST_F(X11WindowManagerTest, ManagersThatComeCrashAndAreReplacedAreFollowed) {
    takeOver("Openbox", {"_NET_WM_ACTION_MINIMIZE"});
    m_running.reset();
    EXPECT_TRUE(tests::await([this] { return m_told == (QList<bool>{true, false}); }));
    takeOver("i3", {"_NET_WM_STATE_HIDDEN"});
    takeOver("Openbox", {"_NET_WM_ACTION_MINIMIZE"});
    takeOver("i3", {"_NET_WM_STATE_HIDDEN"});
    EXPECT_TRUE(tests::await([this] { return m_told == (QList<bool>{true, false, true, false}); }));
}

TEST_F(X11WindowManagerTest, ServerThatIsGoneMinimisesNothing) {
    m_server.stop();
    X11Connection none(m_server.display());
    EXPECT_FALSE(X11WindowManager(none).canMinimise());
}

} // namespace
} // namespace vantle
