// What every source of calls and videos promises.
#include "contract/Contract.h"
#include "fakes/FakeIdleInhibition.h"
#include "platform/session/DesktopIdleInhibition.h"
#include "platform/session/FakeInhibitors.h"
#include "support/Await.h"

namespace vantle {
namespace {

using tests::await;

/// A desktop with an application that keeps it awake, or not.
class InhibitionWorld {
public:
    virtual ~InhibitionWorld() = default;
    [[nodiscard]] virtual IdleInhibition& inhibition() = 0;
    virtual void hold(bool held) = 0;
    /// What tells of it goes, or comes back.
    virtual void setTelling(bool telling) = 0;
    /// Whether most of the applications are told of.
    [[nodiscard]] virtual bool tellsAll() const { return true; }
    /// How often the service was asked; 0 where that can't be seen.
    [[nodiscard]] virtual int questions() const { return 0; }
};

class FakeWorld final : public InhibitionWorld {
public:
    [[nodiscard]] IdleInhibition& inhibition() override { return m_inhibition; }
    void hold(bool held) override { m_inhibition.hold(held); }
    void setTelling(bool telling) override { m_inhibition.setCanTell(telling); }

private:
    fakes::FakeIdleInhibition m_inhibition;
};

/// Session and system bus are one here.
class ServiceWorld : public InhibitionWorld {
public:
    explicit ServiceWorld(const tests::InhibitorForm& form) : m_service(form) {
        m_service.appear();
    }
    [[nodiscard]] IdleInhibition& inhibition() override { return m_inhibition; }
    void hold(bool held) override { m_service.hold(held); }
    void setTelling(bool telling) override { telling ? m_service.appear() : m_service.leave(); }
    [[nodiscard]] int questions() const override { return m_service.questions; }

private:
    tests::BusClient m_session;
    DesktopIdleInhibition m_inhibition{m_session.bus(), LateBus::sessionAddress()};
    tests::FakeInhibitors m_service;
};

class GnomeWorld final : public ServiceWorld {
public:
    GnomeWorld() : ServiceWorld(tests::kGnomeInhibitors) {}
};
class KdeWorld final : public ServiceWorld {
public:
    KdeWorld() : ServiceWorld(tests::kKdeInhibitors) {}
};
class LoginWorld final : public ServiceWorld {
public:
    LoginWorld() : ServiceWorld(tests::kLoginInhibitors) {}
    [[nodiscard]] bool tellsAll() const override { return false; }
};

class IdleInhibitionContract : public contract::Contract<InhibitionWorld> {
protected:
    [[nodiscard]] bool becomesHeld(bool held) {
        return await([&] { return world().inhibition().isHeld() == held; });
    }
};

TEST_P(IdleInhibitionContract, TellsBeginningAndEnd) {
    world().inhibition().setFollowed(true);
    world().hold(true);
    EXPECT_TRUE(becomesHeld(true));
    world().hold(false);
    EXPECT_TRUE(becomesHeld(false));
}

TEST_P(IdleInhibitionContract, FindsOneThatIsThereAlready) {
    world().hold(true);
    world().inhibition().setFollowed(true);
    EXPECT_TRUE(becomesHeld(true));
}

TEST_P(IdleInhibitionContract, NothingIsHeldOrAskedWhileItIsNotFollowed) {
    world().hold(true);
    EXPECT_FALSE(world().inhibition().isHeld());
    EXPECT_TRUE(world().inhibition().canTell());
    world().inhibition().setFollowed(true);
    ASSERT_TRUE(becomesHeld(true));
    world().inhibition().setFollowed(false);
    EXPECT_FALSE(world().inhibition().isHeld());
    const int asked = world().questions();
    world().hold(true);
    world().inhibition().setFollowed(true);
    ASSERT_TRUE(becomesHeld(true));
    EXPECT_LE(world().questions(), asked + 2);
}

TEST_P(IdleInhibitionContract, WhatNoLongerTellsHoldsNothing) {
    world().inhibition().setFollowed(true);
    world().hold(true);
    ASSERT_TRUE(becomesHeld(true));
    world().setTelling(false);
    EXPECT_TRUE(becomesHeld(false));
    EXPECT_TRUE(await([&] { return !world().inhibition().canTell(); }));
    world().setTelling(true);
    EXPECT_TRUE(becomesHeld(true));
    EXPECT_EQ(world().inhibition().canTell(), world().tellsAll());
}

INSTANTIATE_TEST_SUITE_P(Inhibitions, IdleInhibitionContract,
                         testing::Values(contract::maker<InhibitionWorld, FakeWorld>("Fake"),
                                         contract::maker<InhibitionWorld, GnomeWorld>("Gnome"),
                                         contract::maker<InhibitionWorld, KdeWorld>("Kde"),
                                         contract::maker<InhibitionWorld, LoginWorld>("Login")),
                         contract::kByName);

TEST(DesktopIdleInhibition, ServiceThatAnswersByErrorsDoesNotTell) {
    tests::BusClient session;
    tests::FakeInhibitors service(tests::kGnomeInhibitors);
    service.isDumb = true;
    service.hold(true);
    service.appear();
    DesktopIdleInhibition inhibition(session.bus(), LateBus::sessionAddress());
    inhibition.setFollowed(true);
    ASSERT_TRUE(await([&] { return service.questions > 0; }));
    EXPECT_TRUE(await([&] { return !inhibition.canTell(); }));
    EXPECT_FALSE(inhibition.isHeld());
}

TEST(DesktopIdleInhibition, WithoutABusNothingTells) {
    DesktopIdleInhibition inhibition(tests::noBus(), "unix:path=/nonexistent");
    EXPECT_TRUE(inhibition.canTell());
    inhibition.setFollowed(true);
    EXPECT_FALSE(inhibition.canTell());
    EXPECT_FALSE(inhibition.isHeld());
}

} // namespace
} // namespace vantle
