void print() {
    qDebug() << 1;
    qWarning("%d", 1);
    qCInfo(category) << 1;
    std::cout << 1;
    printf("%d", 1);
    std::fprintf(stderr, "%d", 1);
    snprintf(buffer, size, "%d", 1);
    context->setContextProperty(name, 1);
}
