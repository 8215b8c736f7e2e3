// The settings of a program on a virtual disk, clock and desktop.
#pragma once

#include "app/ModelWorld.h"
#include "fakes/FakeAutostart.h"
#include "fakes/FakeIdleInhibition.h"
#include "fakes/FakeOverlayStage.h"
#include "fakes/FakeTrayItem.h"
#include "sensing/AutoRules.h"
#include "surfaces/settings/SettingsView.h"

#include <cerrno>
#include <optional>

namespace vantle::tests {

class SettingsWorld : public ModelWorld {
public:
    /// Returns the program, started if needed.
    AppModel& program() {
        if (!model) launch();
        rules = &autoSkill->rules();
        return *model;
    }
    /// Opens the window, also repeatedly.
    SettingsView& open() {
        program();
        return view.emplace(environment());
    }
    /// Returns the table's row whose title starts so, in the open window.
    [[nodiscard]] PreferenceRowModel& row(const char* title) {
        for (const auto section : {PreferenceRowModel::Focus, PreferenceRowModel::Ceremony,
                                   PreferenceRowModel::AutoMode})
            for (QObject* const object : view->rows(section))
                if (auto* const found = static_cast<PreferenceRowModel*>(object);
                    found->title().startsWith(QLatin1String(title)))
                    return *found;
        qFatal("no such row");
    }
    [[nodiscard]] SettingsView::Environment environment() {
        return {*model,
                *rules,
                focusLink,
                autostart,
                preferences,
                notifications,
                paths,
                ioQueue,
                [this](const QString& path) { revealed << path; },
                [this]() -> Result<> {
                    ++foldersOpened;
                    if (!folderRefuses) return {};
                    return Error::fromErrno(EACCES, QStringLiteral("make"), QStringLiteral("x"));
                },
                tray,
                idleSource,
                idleInhibition,
                frontmost,
                overlayStage,
                [this](const QString& text) { copied << text; },
                [this] { return model->eraseEverything(); }};
    }
    /// Answers the request for the shortcuts' names.
    void answer(const QByteArray& names) { runner.end(ProcessRunner::Output{0, names}); }

    [[nodiscard]] std::optional<QString> stored(const char* key) const {
        return preferences.raw(QLatin1String(key));
    }

    fakes::FakeAutostart autostart;
    AutoRules* rules = nullptr; ///< of the running program
    fakes::FakeTrayItem tray;
    fakes::FakeIdleInhibition idleInhibition;
    fakes::FakeOverlayStage overlayStage;
    QStringList revealed;
    QStringList copied;
    int foldersOpened = 0;
    bool folderRefuses = false;
    std::optional<SettingsView> view;
};

} // namespace vantle::tests
