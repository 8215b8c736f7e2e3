// The review in its window, over a sample log, driven by pointer and keys.
#pragma once

#include "fakes/FakeLanguageModel.h"
#include "fakes/MemoryPreferences.h"
#include "fakes/VirtualTime.h"
#include "review/stats/ReviewSamples.h"
#include "support/Await.h"
#include "support/ShownView.h"
#include "surfaces/wrapped/WrappedView.h"
#include "tracking/NotificationCenter.h"

#include <map>
#include <optional>

namespace vantle::tests {

class WrappedWorld {
protected:
    /// Wednesday, 2026-03-11, 2 PM.
    WrappedWorld() { model.available = false; }

    /// Logs a week with notes, enough for a persona, and a year before it.
    void workAWeek() {
        log = {samples::worked("2025-06-03T22:00:00Z", 90)};
        for (int day = 2; day <= 11; ++day)
            log.push_back(samples::worked(QStringLiteral("2026-03-%1T09:00:00Z")
                                              .arg(day, 2, 10, QLatin1Char('0'))
                                              .toStdString(),
                                          60 + 10 * day));
        log.back().note = QStringLiteral("Drafted the landing page of the importer");
        log[log.size() - 2].note = QStringLiteral("Shipped the landing page");
    }

    QQuickItem& show(bool reduced = true) {
        view = std::make_unique<WrappedView>(environment());
        QQuickItem& root = driver.emplace(reduced).show(
            "Wrapped/WrappedPage", {{QStringLiteral("model"), QVariant::fromValue(view.get())}});
        window = &driver->window();
        return root;
    }

    static void settle() {
        for (int i = 0; i < 3; ++i)
            QCoreApplication::processEvents();
    }
    void press(Qt::Key key) {
        QTest::keyClick(window, key);
        settle();
    }

    [[nodiscard]] bool shows(const QString& words) { return showsText(*window, words); }
    [[nodiscard]] bool shows(const char* utf8) { return shows(QString::fromUtf8(utf8)); }
    [[nodiscard]] QQuickItem* control(const char* name) {
        return shownControl(*window, QString::fromUtf8(name));
    }
    void click(const char* name) {
        driver->click(QString::fromUtf8(name));
        settle();
    }
    /// Returns the page once no other is leaving.
    [[nodiscard]] QQuickItem* page() {
        QQuickItem* const stack = shownItem(window->contentItem(), [](const QQuickItem& item) {
            return item.property("shownKey").isValid();
        });
        return stack ? stack->property("current").value<QQuickItem*>() : nullptr;
    }
    [[nodiscard]] QString kicker() { return page()->property("kicker").toString(); }
    [[nodiscard]] bool isTurning() { return window->rootObject()->property("turning").toBool(); }
    void awaitTurned() {
        ASSERT_TRUE(await([this] { return !isTurning(); }));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    fakes::VirtualTime time{samples::at("2026-03-11T14:00:00Z")};
    fakes::MemoryPreferences preferences;
    fakes::FakeLanguageModel model;
    NotificationCenter notifications;
    std::vector<Session> log;
    std::map<std::size_t, QString> skillNames; ///< in place of those that a new user starts with
    int entered = 0;
    QList<QByteArray> copied;
    std::unique_ptr<WrappedView> view;
    std::optional<ShownView> driver;
    QQuickView* window = nullptr;
    WrappedView::Saved saved = WrappedView::Saved::Failed; ///< the result of saving a poster

private:
    [[nodiscard]] WrappedView::Environment environment() {
        return {
            .notifications = notifications,
            .preferences = preferences,
            .model = model,
            .clock = time,
            .scheduler = time,
            .calendar = [] { return samples::calendarIn(QStringLiteral("UTC")); },
            .allSessions = [this] { return log; },
            .skills =
                [this] {
                    std::vector<Skill> skills = samples::seeds();
                    for (const auto& [index, name] : skillNames)
                        skills.at(index).name = name;
                    return skills;
                },
            .initialPeriod = {},
            .enterVantle = [this] { ++entered; },
            .renderPng = [](const SharePoster&) { return QByteArray("png"); },
            .copyPng = [this](const QByteArray& image) { copied << image; },
            .savePng =
                [this](const QByteArray&, const QString&,
                       const std::function<void(WrappedView::Saved)>& answer) { answer(saved); }};
    }
};

} // namespace vantle::tests
