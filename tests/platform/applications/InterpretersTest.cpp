#include "platform/applications/Interpreters.h"

#include "support/QtPrinters.h"
#include "support/Text.h"

#include <gtest/gtest.h>

namespace vantle::interpreters {
namespace {

using tests::text;

TEST(Interpreters, AreKnownInEachOfTheirVersions) {
    for (const char* one :
         {"python", "python3", "python3.11", "Python3", "perl", "ruby3.1", "wish8.6"})
        EXPECT_TRUE(isOne(text(one))) << one;
    for (const char* other : {"pythonista", "idle-python3.11", "javaws", "ledger.py", ""})
        EXPECT_FALSE(isOne(text(other))) << other;
}

TEST(Interpreters, ScriptIsTheFirstArgumentThatIsNoOption) {
    EXPECT_EQ(scriptOf({"python3", "/home/me/ledger.py", "march.txt"}), text("ledger.py"));
    EXPECT_EQ(scriptOf({"/usr/bin/python3", "-u", "-W", "ignore", "ledger.py"}), text("ledger.py"));
    EXPECT_EQ(scriptOf({"/usr/bin/python3", "/usr/bin/ledger", ""}), text("ledger"));
    EXPECT_EQ(scriptOf({"python3", "-m", "ledger.window"}), text("ledger.window"));
    EXPECT_EQ(scriptOf({"java", "-Xmx1g", "-jar", "/opt/ledger/ledger.jar"}), text("ledger.jar"));
}

TEST(Interpreters, ScriptOfACommonNameGoesByItsFolderAsWell) {
    EXPECT_EQ(scriptOf({"python3", "/home/me/ledger/main.py"}), text("ledger/main.py"));
    EXPECT_EQ(scriptOf({"python3", "/home/me/chess/__main__.py"}), text("chess/__main__.py"));
    EXPECT_EQ(scriptOf({"python3", "main.py"}), text("main.py"));
}

TEST(Interpreters, WhatIsTypedIsNoScript) {
    EXPECT_EQ(scriptOf({"python3"}), QString());
    EXPECT_EQ(scriptOf({"python3", "-c", "import ledger", "x"}), QString());
    EXPECT_EQ(scriptOf({}), QString());
}

} // namespace
} // namespace vantle::interpreters
