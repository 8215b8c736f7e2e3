// What a window is: its rules, and what it shows.
#pragma once

#include "platform/Preference.h"

#include <QObject>
#include <QSize>
#include <QString>
#include <QUrl>

#include <functional>
#include <memory>

namespace vantle {

/// The windows of the program.
enum class WindowId { Dashboard, Wrapped, Log, QuickLog, Welcome, Settings };

/// How a window looks and behaves to the desktop. Sizes are in px and are those of the content,
/// without the title strip.
struct WindowRules {
    QString title;             ///< in the task bar
    bool resizable = false;    ///< by the person
    bool showsTitle = false;   ///< also in its strip; most contents open with a title themselves
    int minContentWidth = 460; ///< of a resizable window
    QSize contentSize = {};    ///< at first; empty means what the content asks for
    const Preference<QString>* frame = nullptr; ///< keeps its place; null where that is not kept
    int scrollableHeight = 0; ///< least height at which the content still serves: where the
                              ///< screen gives less, the window scrolls it; 0 means its own
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

/// The rules of each window.
[[nodiscard]] const WindowRules& rulesOf(WindowId id);

} // namespace vantle
