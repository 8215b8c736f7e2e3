// The corner of the screen with its cards, on virtual time.
#pragma once

#include "app/OpenQuestions.h"
#include "app/TopRightCardSlot.h"
#include "fakes/FakeCardStage.h"
#include "fakes/MemoryFileSystem.h"
#include "fakes/MemoryPreferences.h"
#include "fakes/VirtualTime.h"
#include "support/QtPrinters.h"
#include "surfaces/cards/CornerCard.h"
#include "tracking/AppPaths.h"
#include "tracking/DurationStyle.h"
#include "tracking/NotificationCenter.h"
#include "tracking/Session.h"
#include "tracking/Settings.h"
#include "tracking/SkillList.h"

#include <gtest/gtest.h>

namespace vantle::tests {

class CardWorld {
public:
    CardWorld() { time.attach(ioQueue); }

    void setStyle(DurationStyle style) {
        preferences.setString(settings::durationStyle.key(), durationstyle::rawValue(style));
    }

    [[nodiscard]] static Session session(std::int64_t seconds,
                                         const QString& skillId = QStringLiteral("building")) {
        Session made;
        made.id = QUuid::createUuid();
        made.skillId = skillId;
        made.startedAt = dateFromEpoch(1772359200.0);
        made.endedAt = made.startedAt + Seconds(static_cast<double>(seconds));
        made.activeSeconds = seconds;
        made.source = sourceApp();
        return made;
    }

    /// Returns the only open question, as the panel shows it.
    [[nodiscard]] OpenQuestions::Question openQuestion() const {
        return questions.all().size() == 1 ? questions.all().front().second
                                           : OpenQuestions::Question();
    }
    /// Gives the answer with that text.
    void answer(const QString& answer) {
        for (const auto& one : openQuestion().answers)
            if (one.text == answer) return one.give();
        ADD_FAILURE() << "no answer " << answer.toStdString();
    }

    fakes::VirtualTime time;
    fakes::ManualQueue ioQueue;
    fakes::MemoryFileSystem disk;
    fakes::MemoryPreferences preferences;
    AppPaths paths{disk, QStringLiteral("/data")};
    SkillList skills{paths, ioQueue, preferences};
    NotificationCenter notifications;
    TopRightCardSlot slot;
    OpenQuestions questions;
    fakes::FakeCardStage stage;
    CardEnvironment environment{time, preferences, skills, notifications, slot, stage, questions};
};

} // namespace vantle::tests
