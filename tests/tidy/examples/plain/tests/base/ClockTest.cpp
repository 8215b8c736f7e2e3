TEST(Clock, NoSessionsAreNobody) {}
