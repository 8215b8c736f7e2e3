// The specification of a window: rules, content, entry points.
#pragma once

#include "platform/Preference.h"

#include <QList>
#include <QObject>
#include <QSize>
#include <QString>
#include <QUrl>

#include <functional>
#include <memory>
#include <optional>
#include <string_view>

namespace vantle {

/// The id of a window. Only windows opened by other folders have a constant here.
class WindowId {
public:
    constexpr WindowId() = default;
    explicit constexpr WindowId(std::string_view name) : m_name(name) {}
    friend constexpr bool operator==(WindowId, WindowId) = default;

    static const WindowId Dashboard, Wrapped, Log, QuickLog, Welcome, Settings;

private:
    std::string_view m_name;
};

inline constexpr WindowId WindowId::Dashboard{"dashboard"};
inline constexpr WindowId WindowId::Wrapped{"wrapped"};
inline constexpr WindowId WindowId::Log{"notes"};
inline constexpr WindowId WindowId::QuickLog{"quick log"};
inline constexpr WindowId WindowId::Welcome{"welcome"};
inline constexpr WindowId WindowId::Settings{"settings"};

/// A window's look and behaviour. Sizes in px of the content, without the title strip.
struct WindowRules {
    QString title;             ///< in the task bar
    bool resizable = false;    ///< by the user
    bool showsTitle = false;   ///< also in its strip; most contents open with a title themselves
    int minContentWidth = 460; ///< for a resizable window
    QSize contentSize = {};    ///< initial; empty means the content's own
    const Preference<QString>* frame = nullptr; ///< stores the frame; null when it is not stored
    int scrollableHeight = 0; ///< least height at which the content still serves: where the screen
                              ///< gives less, the window scrolls it; 0 means its own
};

/// A window's content. The view is an item with `required property <Type> model`, where <Type> is
/// the type of the view model. It may set `focus` for keys, and fills the window.
struct WindowContent {
    QUrl view;
    /// Creates the view model for one opening; destroyed when the window closes. `close` closes the
    /// window; a handler of the view may call it.
    std::function<std::unique_ptr<QObject>(std::function<void()> close)> makeModel;
    /// Called with the view model when the window closes, except at the end of the program.
    std::function<void(QObject& model)> willClose = {};
};

/// The window's row in the command center.
struct WindowDoor {
    QString title; ///< empty for no row
    QString key{}; ///< with Ctrl or Super in the panel; empty for none
};

/// The complete description of a window, made by its own folder. Plain values; main thread.
struct WindowSpec {
    WindowId id;
    QString action{}; ///< opens it over the bus; empty for none
    WindowDoor door{};
    std::optional<WindowId> replaces{}; ///< closed before this one opens
    WindowRules rules{};
    WindowContent content{};
};

/// Returns the URL of a view by module and name, such as "Notes/NotesLogView".
[[nodiscard]] inline QUrl viewAt(const char* place) {
    return QUrl(QStringLiteral("qrc:/qt/qml/Vantle/%1.qml").arg(QLatin1String(place)));
}

} // namespace vantle
