#include "platform/AcceleratorText.h"

#include <gtest/gtest.h>

namespace vantle {
namespace {

TEST(AcceleratorText, FixedCombinationIsNotNamed) {
    for (const char* accelerator : {"<Alt><Super>b", "<Super><Alt>B", "LOGO+ALT+b", "<Mod4><Mod1>b",
                                    "Press <Alt><Super>b", "Alt+Super+B", "Meta+Alt+B", ""})
        EXPECT_EQ(acceleratorText(QString::fromLatin1(accelerator)), QString()) << accelerator;
}

TEST(AcceleratorText, OtherKeysAreNamedInOneOrderAndOneForm) {
    EXPECT_EQ(acceleratorText(QStringLiteral("<Alt><Primary>b")), QStringLiteral("Ctrl+Alt+B"));
    EXPECT_EQ(acceleratorText(QStringLiteral("press SHIFT+CTRL+F9")),
              QStringLiteral("Ctrl+Shift+F9"));
    EXPECT_EQ(acceleratorText(QStringLiteral("<Super>space")), QStringLiteral("Super+Space"));
    EXPECT_EQ(acceleratorText(QStringLiteral("XF86Launch1")), QStringLiteral("XF86Launch1"));
}

} // namespace
} // namespace vantle
