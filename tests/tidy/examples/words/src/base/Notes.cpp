QStringList notes() {
    // On a Mac this is a menu bar.
    return {QCoreApplication::translate("Words", "Kept on this Mac"),
            QCoreApplication::translate("Words", "Made on this Mac"),
            QCoreApplication::translate("Words", "Shown in Finder"),
            QCoreApplication::translate("Words", "Draft"),
            QStringLiteral("Look at "
                           "the notch"),
            QStringLiteral("notch.intro.flashed")};
}
