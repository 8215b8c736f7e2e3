// The command center of a program on a virtual disk, clock and desktop.
#pragma once

#include "app/ModelWorld.h"
#include "app/OpenQuestions.h"
#include "surfaces/commandcenter/CommandCenterModel.h"

#include <memory>
#include <vector>

namespace vantle::tests {

class CommandCenterWorld {
protected:
    CommandCenterWorld() {
        world.idleSource.fix(0); // the user is always present
        world.launch();
        world.settle();
        content = std::make_unique<CommandCenterModel>(
            CommandCenterModel::Environment{world.model->flow(), world.model->actionNote(),
                                            world.model->panelState(), *world.skills,
                                            world.preferences, world.time, questions, doors},
            actions());
        content->setShown(true);
    }

    static QList<CommandCenterModel::Door> doors() {
        return {{WindowId::Dashboard, {QStringLiteral("Hours"), QStringLiteral("D")}},
                {WindowId::Log, {QStringLiteral("Notes")}}};
    }
    CommandCenterActions actions() {
        AppModel& model = *world.model;
        const auto told = [this](const char* what) {
            return [this, what] { calls.append(QLatin1String(what)); };
        };
        return {
            .toggleVantle = [&model] { model.toggleVantle(); },
            .selectSkill =
                [&model](const QString& id) {
                    model.selectSkill(id, AppModel::SkillSelectionOrigin::Human);
                },
            .addSkill = [&model](const QString& name,
                                 std::uint32_t hexRGB) { model.addSkill(name, hexRGB); },
            .updateSkill = [&model](const QString& id, const QString& name,
                                    std::uint32_t hexRGB) { model.updateSkill(id, name, hexRGB); },
            .deleteSkill = [&model](const QString& id) { model.deleteSkill(id); },
            .backfill = [&model](int minutes) { model.startWithBackfill(minutes); },
            .openWindow = [this](WindowId id) { opened.push_back(id); },
            .openWrapped =
                [this](WrappedPeriod period) {
                    calls.append(QStringLiteral("wrapped ") + wrappedperiod::id(period));
                },
            .quit = told("quit"),
            .hide = told("hide"),
            .relayout = told("relayout")};
    }

    [[nodiscard]] QVariant mode(int row, int role) const {
        return content->modes()->index(row).data(role);
    }

    ModelWorld world;
    OpenQuestions questions;
    QStringList calls;
    std::vector<WindowId> opened;
    std::unique_ptr<CommandCenterModel> content;
};

} // namespace vantle::tests
