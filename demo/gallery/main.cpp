// The gallery: every surface in every state, with made-up data.
//
//     vantle_gallery <folder> [scene...]     writes pictures, of all scenes when none is named
//     vantle_gallery --show <scene>          opens one to be played with
//     vantle_gallery --list
//     vantle_gallery --language <language> <folder> [scene...]     pictures in that language
//     vantle_gallery --pseudo <folder> [scene...]     pictures in the pseudo-locale
//     vantle_gallery --scaled <folder> [scene...]     pictures of all scenes at any scale
//     vantle_gallery --texts [scene...]     tells what can't be read in the pseudo-locale, one line
//                                           a fault: "scene: kind: text"
//
// Pictures are drawn at the scale that QT_SCALE_FACTOR says; above 1 only the scenes that ask for
// it or, after --scaled, all, into files named …@1.5x.png. Painted scenes have no --show.
#include "gallery/PseudoLocale.h"
#include "gallery/Scenes.h"
#include "gallery/Stage.h"
#include "gallery/TextFaults.h"
#include "launch/Catalogues.h"

#include <QCoreApplication>
#include <QDir>
#include <QGuiApplication>
#include <QLocale>
#include <QQuickWindow>

#include <cstdio>

namespace vantle {
namespace {

int fail(const QString& what) {
    std::fprintf(stderr, "%s\n", qUtf8Printable(what));
    return 1;
}

int list() {
    for (const Scene& scene : allScenes())
        std::printf("%s\n", qUtf8Printable(scene.name));
    return 0;
}

int play(const QString& name) {
    for (const Scene& scene : allScenes()) {
        if (scene.name != name || scene.paint) continue;
        Stage stage(scene, false);
        if (!stage.error().isEmpty()) return fail(stage.error());
        return QCoreApplication::exec();
    }
    return fail(QStringLiteral("No scene is called %1").arg(name));
}

int tellFaults(const QStringList& wanted) {
    for (const Scene& scene : allScenes()) {
        if (scene.paint || (!wanted.isEmpty() && !wanted.contains(scene.name))) continue;
        Stage stage(scene, true);
        if (!stage.error().isEmpty()) return fail(stage.error());
        QStringList faults = untranslatedTexts(stage.window());
        for (QString& text : faults)
            text.prepend(QStringLiteral("untranslated: "));
        for (QString& fault : faults + crampedTexts(stage.window()))
            std::printf("%s: %s\n", qUtf8Printable(scene.name),
                        qUtf8Printable(fault.replace(QLatin1Char('\n'), QLatin1Char(' '))));
    }
    return 0;
}

/// Returns a null image after an error, which it reports.
QImage pictureOf(const Scene& scene, double scale) {
    if (scene.paint) return scene.paint(scale);
    Stage stage(scene, true);
    if (stage.error().isEmpty()) return stage.picture();
    fail(stage.error());
    return {};
}

enum class AboveOne { ScenesThatAsk, AllScenes };

int draw(const QDir& folder, const QStringList& wanted, AboveOne above = AboveOne::ScenesThatAsk) {
    const double scale = qGuiApp->devicePixelRatio();
    int drawn = 0;
    for (const Scene& scene : allScenes()) {
        if (!wanted.isEmpty() && !wanted.contains(scene.name)) continue;
        ++drawn;
        if (above == AboveOne::ScenesThatAsk && !isDrawnAt(scene, scale)) continue;
        const QImage picture = pictureOf(scene, scale);
        if (picture.isNull()) return 1;
        const QString ending = scale == 1 ? QString() : QStringLiteral("@%1x").arg(scale);
        const QString path = folder.filePath(scene.name + ending + QStringLiteral(".png"));
        constexpr int kSmallest = 0; // the slowest compression
        if (!picture.save(path, "PNG", kSmallest))
            return fail(QStringLiteral("Can't write %1").arg(path));
    }
    if (!wanted.isEmpty() && drawn < wanted.size())
        return fail(QStringLiteral("Not all of these are scenes; see --list"));
    return 0;
}

int drawPseudo(const QStringList& arguments) {
    PseudoLocale pseudo;
    QCoreApplication::installTranslator(&pseudo);
    if (arguments.first() == QLatin1String("--texts")) return tellFaults(arguments.mid(1));
    return draw(QDir(arguments.value(1)), arguments.mid(2));
}

} // namespace
} // namespace vantle

int main(int argc, char** argv) {
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    QGuiApplication application(argc, argv);
    QStringList arguments = QCoreApplication::arguments().mid(1);
    if (arguments.value(0) == QLatin1String("--language")) {
        QLocale::setDefault(QLocale(arguments.value(1)));
        arguments = arguments.mid(2);
    }
    const vantle::Catalogues catalogues(QLocale().uiLanguages());
    if (arguments.isEmpty() || arguments.first() == QLatin1String("--list")) return vantle::list();
    if (arguments.first() == QLatin1String("--show")) return vantle::play(arguments.value(1));
    if (arguments.first() == QLatin1String("--pseudo") ||
        arguments.first() == QLatin1String("--texts"))
        return vantle::drawPseudo(arguments);
    if (arguments.first() == QLatin1String("--scaled"))
        return vantle::draw(QDir(arguments.value(1)), arguments.mid(2),
                            vantle::AboveOne::AllScenes);
    return vantle::draw(QDir(arguments.first()), arguments.mid(1));
}
