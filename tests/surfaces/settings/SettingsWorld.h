// The settings of a program on a disk, a clock and a desktop of its own.
#pragma once

#include "app/ModelWorld.h"
#include "fakes/FakeAutostart.h"
#include "fakes/FakeOverlayStage.h"
#include "fakes/FakeTrayItem.h"
#include "sensing/AutoRules.h"
#include "surfaces/settings/SettingsView.h"

#include <cerrno>
#include <optional>

namespace vantle::tests {

class SettingsWorld : public ModelWorld {
public:
    /// The program, started unless it runs.
    AppModel& program() {
        if (!model) launch();
        rules = &autoSkill->rules();
        return *model;
    }
    /// The window opens, for the first time or again.
    SettingsView& open() {
        program();
        return view.emplace(environment());
    }
    /// The row of the table whose title begins so, in the open window.
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
                frontmost,
                overlayStage,
                [this](const QString& text) { copied << text; },
                [this] { return model->eraseEverything(); }};
    }
    /// The tool that lists shortcuts answers.
    void answer(const QByteArray& names) { runner.end(ProcessRunner::Output{0, names}); }

    [[nodiscard]] std::optional<QString> stored(const char* key) const {
        return preferences.raw(QLatin1String(key));
    }

    fakes::FakeAutostart autostart;
    AutoRules* rules = nullptr; ///< of the program that runs
    fakes::FakeTrayItem tray;
    fakes::FakeOverlayStage overlayStage;
    QStringList revealed;
    QStringList copied;
    int foldersOpened = 0;
    bool folderRefuses = false;
    std::optional<SettingsView> view;
};

} // namespace vantle::tests
