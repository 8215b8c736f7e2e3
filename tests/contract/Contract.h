// The frame of a contract suite: the same tests over each implementation of a port.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace vantle::contract {

/// Makes one world, the environment of an implementation. `name` becomes part of the test names.
template <typename World>
struct Maker {
    const char* name;
    std::unique_ptr<World> (*make)();
    friend void PrintTo(const Maker& maker, std::ostream* out) { *out << maker.name; }
};

template <typename World, typename Form>
[[nodiscard]] Maker<World> maker(const char* name) {
    return {name, []() -> std::unique_ptr<World> { return std::make_unique<Form>(); }};
}

/// A test of the suite with its own world.
template <typename World>
class Contract : public testing::TestWithParam<Maker<World>> {
protected:
    [[nodiscard]] World& world() const { return *m_world; }

private:
    const std::unique_ptr<World> m_world = testing::TestWithParam<Maker<World>>::GetParam().make();
};

/// Names a test after its world.
constexpr auto kByName = [](const auto& info) { return std::string(info.param.name); };

} // namespace vantle::contract
