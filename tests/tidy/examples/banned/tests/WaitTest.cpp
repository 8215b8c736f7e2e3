void wait() {
    sleep(1);
    ::usleep(1000);
    std::this_thread::sleep_for(1ms);
    QThread::msleep(5);
    QTest::qWait(5);
    qInfo() << 1;
    EXPECT_TRUE(QTest::qWaitFor(done));
    screens.sleep();
}
