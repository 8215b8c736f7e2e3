#include "surfaces/kit/controls/Announcer.h"

#include "support/QtPrinters.h"
#include "support/Text.h"

#include <QAccessible>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace vantle::tests {
namespace {

// That readers hear it, and once for each message, is tested with the desktop's service.

TEST(Announcer, MessageIsANotificationThatIsThereOnlyWithItsText) {
    Announcer announcer;
    QAccessibleInterface* const told = QAccessible::queryAccessibleInterface(&announcer);
    ASSERT_NE(told, nullptr);
    EXPECT_EQ(told->role(), QAccessible::Notification);
    EXPECT_TRUE(told->state().invisible);
    announcer.say(text("Session started, Build"));
    EXPECT_EQ(told->text(QAccessible::Name), text("Session started, Build"));
    EXPECT_FALSE(told->state().invisible);
    announcer.say({});
    EXPECT_TRUE(told->state().invisible);
}

TEST(Announcer, TextOfAViewIsAnnouncedAsItChanges) {
    Announcer announcer;
    const QSignalSpy changes(&announcer, &Announcer::textChanged);
    announcer.setText(text("2 notes"));
    announcer.setText(text("2 notes"));
    announcer.setText(text("1 note"));
    EXPECT_EQ(changes.count(), 2);
}

} // namespace
} // namespace vantle::tests
