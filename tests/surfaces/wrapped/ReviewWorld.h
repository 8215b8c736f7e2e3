// A review over the log of a test, with recorded requests.
#pragma once

#include "fakes/FakeLanguageModel.h"
#include "fakes/MemoryPreferences.h"
#include "fakes/VirtualTime.h"
#include "review/stats/ReviewSamples.h"
#include "surfaces/wrapped/WrappedView.h"
#include "tracking/NotificationCenter.h"

#include <memory>

namespace vantle::tests {

class ReviewWorld {
protected:
    [[nodiscard]] WrappedView::Environment environment(std::optional<WrappedPeriod> initial = {}) {
        return {.notifications = notifications,
                .preferences = preferences,
                .model = model,
                .clock = time,
                .scheduler = time,
                .calendar = [] { return samples::calendarIn(QStringLiteral("UTC")); },
                .allSessions = [this] { return log; },
                .skills = [] { return samples::seeds(); },
                .initialPeriod = initial,
                .enterVantle = [this] { ++entered; },
                .renderPng =
                    [this](const SharePoster& poster) {
                        rendered = poster.title;
                        return png;
                    },
                .copyPng = [this](const QByteArray& image) { copied << image; },
                .savePng =
                    [this](const QByteArray& image, const QString& name,
                           std::function<void(WrappedView::Saved)> done) {
                        saved << image;
                        suggested = name;
                        answerSave = std::move(done);
                    }};
    }
    WrappedView& open(std::optional<WrappedPeriod> initial = {}) {
        return *(view = std::make_unique<WrappedView>(environment(initial)));
    }

    /// The language model's answer.
    [[nodiscard]] static QString sentence() {
        return QStringLiteral("You shipped the landing page and mended the login.");
    }
    /// Logs work with a note this week (9 to 15 March).
    void logNotes(int count = 3) {
        for (int i = 0; i < count; ++i) {
            log.push_back(samples::worked("2026-03-10T09:00:00Z", 60));
            log.back().note = QStringLiteral("Drafted and shipped part %1 of the page").arg(i);
        }
    }
    void pick(const QString& label) {
        view->pickSegment(static_cast<int>(view->segmentLabels().indexOf(label)));
    }
    [[nodiscard]] QString shown() const { return view->segmentLabels()[view->segmentIndex()]; }
    [[nodiscard]] bool has(const char* card) const {
        return view->cards().contains(QLatin1String(card));
    }
    void answerModel(const std::optional<QString>& text = sentence()) {
        model.answer(text);
        time.settle();
    }

    fakes::VirtualTime time{samples::at("2026-03-11T14:00:00Z")}; // a Wednesday
    fakes::MemoryPreferences preferences;
    fakes::FakeLanguageModel model;
    NotificationCenter notifications;
    std::vector<Session> log;
    std::optional<QByteArray> png = QByteArray("png");
    QString rendered;
    QList<QByteArray> copied;
    QList<QByteArray> saved;
    QString suggested;
    std::function<void(WrappedView::Saved)> answerSave;
    int entered = 0;
    std::unique_ptr<WrappedView> view;
};

} // namespace vantle::tests
