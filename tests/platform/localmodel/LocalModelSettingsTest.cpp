#include "platform/localmodel/LocalModelSettings.h"

#include "support/QtPrinters.h"

#include <gtest/gtest.h>

namespace vantle {
namespace {

using Settings = LocalModelSettings;

const QString kSocket = QStringLiteral("/run/user/1000/model.sock");

TEST(LocalModelSettings, NamesASocketAndPerhapsAModel) {
    EXPECT_EQ(Settings::parse("socket=/run/user/1000/model.sock"), (Settings{kSocket, QString()}));
    EXPECT_EQ(Settings::parse("# mine\n\n  socket = /run/user/1000/model.sock \r\n"
                              "model = small = good\n"),
              (Settings{kSocket, QStringLiteral("small = good")}));
    EXPECT_EQ(Settings::parse("socket=/tmp/\xC3\xA9.sock")->socket,
              QStringLiteral("/tmp/\u00E9.sock"));
}

TEST(LocalModelSettings, WithoutASocketThereAreNone) {
    EXPECT_EQ(Settings::parse(""), std::nullopt);
    EXPECT_EQ(Settings::parse("model=small\n"), std::nullopt);
    EXPECT_EQ(Settings::parse("socket=\n"), std::nullopt);
}

TEST(LocalModelSettings, OnlyAbsolutePathsAreSockets) {
    EXPECT_EQ(Settings::parse("socket=model.sock"), std::nullopt);
    EXPECT_EQ(Settings::parse("socket=http://localhost:8080"), std::nullopt);
    EXPECT_EQ(Settings::parse("socket=127.0.0.1:8080"), std::nullopt);
    EXPECT_EQ(Settings::parse("socket=@abstract"), std::nullopt);
}

TEST(LocalModelSettings, PathThatNoAddressHoldsIsNone) {
    const QByteArray line = "socket=/";
    EXPECT_TRUE(Settings::parse(line + QByteArray(106, 'a')));
    EXPECT_EQ(Settings::parse(line + QByteArray(107, 'a')), std::nullopt);
    EXPECT_EQ(Settings::parse(line + QByteArray(54, '\xC3').replace("\xC3", "\xC3\xA9")),
              std::nullopt)
        << "in bytes";
}

TEST(LocalModelSettings, WhatIsNotUnderstoodIsNotGuessed) {
    const QByteArray good = "socket=/run/user/1000/model.sock\n";
    ASSERT_TRUE(Settings::parse(good));
    EXPECT_EQ(Settings::parse(good + "no line of ours\n"), std::nullopt);
    EXPECT_EQ(Settings::parse(good + "port=8080\n"), std::nullopt);
    EXPECT_EQ(Settings::parse(good + "model=\xFF\n"), std::nullopt) << "not UTF-8";
    EXPECT_EQ(Settings::parse(good + QByteArray("model=a\0b\n", 10)), std::nullopt);
    EXPECT_EQ(Settings::parse(good + QByteArray(Settings::maxFileSize, '\n')), std::nullopt);
}

} // namespace
} // namespace vantle
