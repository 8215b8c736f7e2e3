#include "platform/x11/X11WindowReader.h"

#include "platform/x11/X11Connection.h"

#include <QSysInfo>

#include <xcb/res.h>

#include <algorithm>

namespace vantle {

namespace {

/// Limit of a chain of transient windows, which may be circular.
constexpr int kMaxTransients = 8;
/// Longest property read, in 32-bit units. Identities are far shorter.
constexpr std::uint32_t kMaxWords = 256;

using Property = XcbOwned<xcb_get_property_reply_t>;

constexpr std::array<const char*, 9> kNames{
    "_NET_ACTIVE_WINDOW",  "_NET_SUPPORTED",           "_NET_WM_PID",
    "_NET_WM_WINDOW_TYPE", "_NET_WM_WINDOW_TYPE_DOCK", "_NET_WM_WINDOW_TYPE_DESKTOP",
    "_GTK_APPLICATION_ID", "_KDE_NET_WM_DESKTOP_FILE", "UTF8_STRING",
};

/// Returns the first value of a property.
std::optional<std::uint32_t> number(const xcb_get_property_reply_t* property) {
    const auto numbers = numbersOf(property);
    return numbers.empty() ? std::nullopt : std::optional(numbers.front());
}

/// Returns a text, without a terminating zero.
QString text(const xcb_get_property_reply_t* property) {
    const QByteArrayView all = bytesOf(property);
    const qsizetype end = all.indexOf('\0');
    return QString::fromUtf8(end < 0 ? all : all.first(end)).trimmed();
}

xcb_res_query_client_ids_cookie_t askForProcess(xcb_connection_t* xcb, xcb_window_t window) {
    const xcb_res_client_id_spec_t spec{window, XCB_RES_CLIENT_ID_MASK_LOCAL_CLIENT_PID};
    return xcb_res_query_client_ids(xcb, 1, &spec);
}

/// Returns the process behind the window's connection; empty for a network connection.
std::optional<std::uint32_t> processOf(const xcb_res_query_client_ids_reply_t* answer) {
    if (answer == nullptr) return std::nullopt;
    auto ids = xcb_res_query_client_ids_ids_iterator(answer);
    for (; ids.rem > 0; xcb_res_client_id_value_next(&ids)) {
        if ((ids.data->spec.mask & XCB_RES_CLIENT_ID_MASK_LOCAL_CLIENT_PID) != 0 &&
            xcb_res_client_id_value_value_length(ids.data) > 0)
            return *xcb_res_client_id_value_value(ids.data);
    }
    return std::nullopt;
}

} // namespace

WindowHints hintsOf(const WindowReplies& replies, const QByteArray& host) {
    WindowHints hints;
    const QList<QByteArray> classParts = bytesOf(replies.windowClass).toByteArray().split('\0');
    hints.instance = QString::fromUtf8(classParts.value(0)).trimmed();
    hints.windowClass = QString::fromUtf8(classParts.value(1)).trimmed();
    hints.applicationId = text(replies.gtkApplication);
    if (hints.applicationId.isEmpty()) hints.applicationId = text(replies.kdeDesktopFile);
    const auto id = replies.processOfServer ? replies.processOfServer : number(replies.process);
    // A process id from another machine would name the wrong process here, and the server knows
    // only the forwarding program.
    if (id && *id > 0 && text(replies.machine) == QString::fromLocal8Bit(host))
        hints.processId = *id;
    return hints;
}

X11WindowReader::X11WindowReader(X11Connection& connection)
    : m_connection(connection)
    , m_host(QSysInfo::machineHostName().toLocal8Bit())
    , m_serverKnowsProcesses(connection.extension(xcb_res_id) != nullptr) {
    static_assert(kNames.size() == AtomCount);
    m_atoms = connection.atoms(kNames);
}

xcb_window_t X11WindowReader::activeWindow() {
    const auto answer = m_connection.reply<xcb_get_property_reply>(xcb_get_property(
        m_connection.xcb(), 0, m_connection.root(), m_atoms[ActiveWindow], XCB_ATOM_WINDOW, 0, 1));
    return number(answer.get()).value_or(XCB_NONE);
}

bool X11WindowReader::tellsActiveWindow() {
    const auto answer = m_connection.reply<xcb_get_property_reply>(
        xcb_get_property(m_connection.xcb(), 0, m_connection.root(), m_atoms[Supported],
                         XCB_ATOM_ATOM, 0, kMaxWords));
    const auto supported = numbersOf(answer.get());
    return std::ranges::find(supported, m_atoms[ActiveWindow]) != supported.end();
}

std::optional<WindowHints> X11WindowReader::read(xcb_window_t window) {
    std::optional<WindowHints> topmost;
    for (int depth = 0; depth < kMaxTransients && window != XCB_NONE; ++depth) {
        const auto read = readOne(window);
        if (!read) return topmost; // a parent may be gone; the dialog's own hints still count
        if (!read->isApplication) return std::nullopt;
        topmost = read->hints;
        // A group's dialog names the root window.
        if (read->transientFor == m_connection.root() || read->transientFor == window) break;
        window = read->transientFor;
    }
    return topmost;
}

std::optional<WindowHints> X11WindowReader::readFocus() {
    const auto focus =
        m_connection.reply<xcb_get_input_focus_reply>(xcb_get_input_focus(m_connection.xcb()));
    if (!focus || focus->focus <= XCB_INPUT_FOCUS_POINTER_ROOT) return std::nullopt;
    const auto window = readOne(focus->focus);
    return window ? std::optional(window->hints) : std::nullopt;
}

bool X11WindowReader::isIdentity(xcb_atom_t property) const {
    return property == XCB_ATOM_WM_CLASS || property == XCB_ATOM_WM_TRANSIENT_FOR ||
           property == m_atoms[WindowType] || property == m_atoms[GtkApplicationId] ||
           property == m_atoms[KdeDesktopFile];
}

bool X11WindowReader::isApplicationType(const xcb_get_property_reply_t* types) const {
    const auto type = number(types); // the first type is preferred
    return !type || (*type != m_atoms[TypeDock] && *type != m_atoms[TypeDesktop]);
}

std::optional<X11WindowReader::Window> X11WindowReader::readOne(xcb_window_t window) {
    auto* const xcb = m_connection.xcb();
    const auto ask = [&](xcb_atom_t name, xcb_atom_t type) {
        return xcb_get_property(xcb, 0, window, name, type, 0, kMaxWords);
    };
    // Sends all requests before it reads replies: one round trip.
    const auto attributesCookie = xcb_get_window_attributes(xcb, window);
    const auto classCookie = ask(XCB_ATOM_WM_CLASS, XCB_ATOM_STRING);
    const auto transientCookie = ask(XCB_ATOM_WM_TRANSIENT_FOR, XCB_ATOM_WINDOW);
    const auto machineCookie = ask(XCB_ATOM_WM_CLIENT_MACHINE, XCB_ATOM_STRING);
    const auto processCookie = ask(m_atoms[ProcessId], XCB_ATOM_CARDINAL);
    const auto typeCookie = ask(m_atoms[WindowType], XCB_ATOM_ATOM);
    const auto gtkCookie = ask(m_atoms[GtkApplicationId], m_atoms[Utf8]);
    const auto kdeCookie = ask(m_atoms[KdeDesktopFile], XCB_GET_PROPERTY_TYPE_ANY);
    std::optional<xcb_res_query_client_ids_cookie_t> ownerCookie;
    if (m_serverKnowsProcesses) ownerCookie = askForProcess(xcb, window);
    const auto answer = [&](xcb_get_property_cookie_t cookie) {
        return m_connection.reply<xcb_get_property_reply>(cookie);
    };
    const auto attributes = m_connection.reply<xcb_get_window_attributes_reply>(attributesCookie);
    const Property classAnswer = answer(classCookie);
    const Property transient = answer(transientCookie);
    const Property machine = answer(machineCookie);
    const Property process = answer(processCookie);
    const Property type = answer(typeCookie);
    const Property gtk = answer(gtkCookie);
    const Property kde = answer(kdeCookie);
    std::optional<std::uint32_t> owner;
    if (ownerCookie)
        owner = processOf(m_connection.reply<xcb_res_query_client_ids_reply>(*ownerCookie).get());
    if (!attributes) return std::nullopt;

    Window read;
    read.isApplication = attributes->override_redirect == 0 && isApplicationType(type.get());
    read.transientFor = number(transient.get()).value_or(XCB_NONE);
    read.hints = hintsOf({.windowClass = classAnswer.get(),
                          .machine = machine.get(),
                          .gtkApplication = gtk.get(),
                          .kdeDesktopFile = kde.get(),
                          .process = process.get(),
                          .processOfServer = owner},
                         m_host);
    return read;
}

} // namespace vantle
