// What a window is: its rules, what it shows, and what leads to it.
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

/// The name of a window. Only those that other folders open have one here.
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

/// How a window looks and behaves to the desktop. Sizes are in px and are those of the content,
/// without the title strip.
struct WindowRules {
    QString title;             ///< in the task bar
    bool resizable = false;    ///< by the user
    bool showsTitle = false;   ///< also in its strip; most contents open with a title themselves
    int minContentWidth = 460; ///< of a resizable window
    QSize contentSize = {};    ///< at first; empty means what the content asks for
    const Preference<QString>* frame = nullptr; ///< keeps its place; null where that is not kept
    int scrollableHeight = 0; ///< least height at which the content still serves: where the screen
                              ///< gives less, the window scrolls it; 0 means its own
};

/// What stands in a window. The view is an item with `required property <Type> model`, in which
/// <Type> is the type of the view model. It may set `focus` to take keys, and fills the window.
struct WindowContent {
    QUrl view;
    /// Makes the view model for one opening of the window; it goes when the window closes.
    /// `close` closes the window; it may be called from a handler of the view.
    std::function<std::unique_ptr<QObject>(std::function<void()> close)> makeModel;
    /// Told when the window closes, with the view model; not when the program ends meanwhile.
    std::function<void(QObject& model)> willClose = {};
};

/// The row of the command center that leads to a window.
struct WindowDoor {
    QString title; ///< empty for no row
    QString key{}; ///< opens the window with Ctrl or Super while the panel is there; empty for none
};

/// All that the rest of the program knows of a window. Its own folder makes it.
struct WindowSpec {
    WindowId id;
    QString action{}; ///< the action on the bus that opens it; empty for none
    WindowDoor door{};
    std::optional<WindowId> replaces{}; ///< closed before this one opens
    WindowRules rules{};
    WindowContent content{};
};

/// The place of a view among the modules, such as "Notes/NotesLogView".
[[nodiscard]] inline QUrl viewAt(const char* place) {
    return QUrl(QStringLiteral("qrc:/qt/qml/Vantle/%1.qml").arg(QLatin1String(place)));
}

} // namespace vantle
