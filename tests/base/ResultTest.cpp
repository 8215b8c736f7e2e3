#include "base/Result.h"

#include "support/QtPrinters.h"

#include <gmock/gmock.h>

#include <cerrno>
#include <memory>

namespace vantle {
namespace {

TEST(Result, HoldsAValue) {
    const Result<int> result = 42;
    EXPECT_TRUE(result.ok());
    EXPECT_TRUE(result);
    EXPECT_EQ(result.value(), 42);
}

TEST(Result, HoldsAnError) {
    const Result<int> result = Error{5, QStringLiteral("read"), QStringLiteral("/a"), {}};
    EXPECT_FALSE(result.ok());
    EXPECT_FALSE(result);
    EXPECT_EQ(result.error().code, 5);
}

TEST(Result, HandsOutValuesThatCanOnlyBeMoved) {
    Result<std::unique_ptr<int>> result = std::make_unique<int>(7);
    const std::unique_ptr<int> value = std::move(result.value());
    EXPECT_EQ(*value, 7);
}

TEST(Result, WithoutAValueIsOkUnlessItHoldsAnError) {
    EXPECT_TRUE(Result<>());
    const Result<> failed = Error{1, {}, {}, QStringLiteral("no")};
    EXPECT_FALSE(failed);
    EXPECT_EQ(failed.error().text, QStringLiteral("no"));
}

TEST(Error, DescribesItselfWithOperationAndFile) {
    const Error error =
        Error::fromErrno(ENOSPC, QStringLiteral("write"), QStringLiteral("/data/sessions.jsonl"));
    EXPECT_EQ(error.code, ENOSPC);
    EXPECT_EQ(error.description(),
              QStringLiteral("No space left on device (write /data/sessions.jsonl)"));
}

TEST(Error, DescribesItselfWithWhatItKnows) {
    const QString text = QStringLiteral("It failed");
    EXPECT_EQ((Error{0, {}, {}, text}.description()), text);
    EXPECT_EQ((Error{0, QStringLiteral("start"), {}, text}.description()),
              QStringLiteral("It failed (start)"));
}

TEST(Error, TakesPercentSignsInNamesAsTheyAre) {
    EXPECT_EQ(
        (Error{0, QStringLiteral("%3 read"), QStringLiteral("/a/%1 %2"), QStringLiteral("100 %2")}
             .description()),
        QStringLiteral("100 %2 (%3 read /a/%1 %2)"));
}

} // namespace
} // namespace vantle
