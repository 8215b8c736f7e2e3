#include "platform/FirstFrontmostApp.h"

#include "fakes/FakeFrontmostApp.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <utility>
#include <vector>

namespace vantle {
namespace {

using fakes::FakeFrontmostApp;

Application application(const char* id) { return {QString::fromUtf8(id), {}}; }

class FirstFrontmostAppTest : public testing::Test {
protected:
    FirstFrontmostAppTest() {
        std::vector<std::unique_ptr<FrontmostApp>> sources;
        sources.reserve(m_sources.size());
        for (FakeFrontmostApp*& source : m_sources) {
            auto made = std::make_unique<FakeFrontmostApp>();
            made->setCoverage(AppCoverage::None);
            source = made.get();
            sources.push_back(std::move(made));
        }
        m_first = std::make_unique<FirstFrontmostApp>(std::move(sources));
        QObject::connect(m_first.get(), &FrontmostApp::activated, m_first.get(),
                         [this](const auto& app) {
                             m_told.append(app ? app->bundleId : QStringLiteral("none"));
                             EXPECT_EQ(m_first->frontmost(), app);
                         });
        QObject::connect(m_first.get(), &FrontmostApp::coverageChanged, m_first.get(),
                         [this] { ++m_changes; });
    }
    [[nodiscard]] QString told() const { return m_told.join(u' '); }

    std::array<FakeFrontmostApp*, 3> m_sources{};
    std::unique_ptr<FirstFrontmostApp> m_first;
    QStringList m_told;
    int m_changes = 0;
};

TEST_F(FirstFrontmostAppTest, OfEachCombinationTheFirstThatCanTellDoes) {
    for (unsigned able = 0; able < 8; ++able) {
        const char* expected = nullptr;
        for (unsigned i = 3; i-- > 0;) {
            static constexpr std::array kIds{"zero", "one", "two"};
            const bool can = (able >> i & 1U) != 0;
            m_sources[i]->setCoverage(can ? AppCoverage::All : AppCoverage::None);
            if (!can) continue;
            m_sources[i]->activate(application(kIds[i]));
            expected = kIds[i];
        }
        EXPECT_EQ(m_first->coverage(), expected ? AppCoverage::All : AppCoverage::None) << able;
        EXPECT_EQ(m_first->frontmost(),
                  expected ? std::optional(application(expected)) : std::nullopt)
            << able;
    }
}

TEST_F(FirstFrontmostAppTest, WhatABetterSourceDoesNotTellIsNotAskedOfTheNext) {
    m_sources[0]->setCoverage(AppCoverage::All);
    m_sources[1]->setCoverage(AppCoverage::All);
    m_sources[1]->activate(application("editor"));
    EXPECT_EQ(m_first->frontmost(), std::nullopt);
    EXPECT_EQ(told(), QString());
}

TEST_F(FirstFrontmostAppTest, ASourceThatComesLaterTakesOverAndGivesBack) {
    m_sources[2]->setCoverage(AppCoverage::Some);
    m_sources[2]->activate(application("editor"));
    EXPECT_EQ(m_first->coverage(), AppCoverage::Some);
    m_sources[0]->setCoverage(AppCoverage::All);
    EXPECT_EQ(m_first->coverage(), AppCoverage::All);
    m_sources[0]->activate(application("browser"));
    m_sources[0]->setCoverage(AppCoverage::None);
    EXPECT_EQ(m_first->coverage(), AppCoverage::Some);
    EXPECT_EQ(told(), QStringLiteral("editor none browser editor"));
    EXPECT_EQ(m_changes, 3);
}

TEST_F(FirstFrontmostAppTest, TheSameApplicationFromAnotherSourceIsNoSwitch) {
    m_sources[1]->setCoverage(AppCoverage::All);
    m_sources[1]->activate(application("editor"));
    m_sources[0]->application = application("editor");
    m_sources[0]->setCoverage(AppCoverage::All);
    EXPECT_EQ(told(), QStringLiteral("editor"));
    EXPECT_EQ(m_changes, 1);
}

TEST_F(FirstFrontmostAppTest, HelpIsOfferedAsLongAsNotAllIsTold) {
    int changes = 0;
    QObject::connect(m_first.get(), &FrontmostApp::helpChanged, m_first.get(), [&] { ++changes; });
    m_sources[1]->setHelp(FrontmostHelp::Offered);
    EXPECT_EQ(m_first->help(), FrontmostHelp::Offered);
    m_sources[2]->setCoverage(AppCoverage::Some);
    EXPECT_EQ(m_first->help(), FrontmostHelp::Offered);
    m_first->acceptHelp();
    EXPECT_EQ(m_sources[1]->accepted, 1);
    m_sources[0]->setCoverage(AppCoverage::All);
    EXPECT_EQ(m_first->help(), FrontmostHelp::None);
    m_first->acceptHelp();
    EXPECT_EQ(m_sources[1]->accepted, 1);
    EXPECT_EQ(changes, 2);
}

} // namespace
} // namespace vantle
