// ceremony_frames <folder> [<width> <height> [<skill>]]: a picture of each script at several
// moments, as it looks over a dark desktop. The random numbers are the same at every run.
//
// Exit code 0 when every picture was written, 1 when one was not, 2 on wrong arguments.
#include "ceremony/CeremonyFrames.h"

#include <QDir>
#include <QGuiApplication>

#include <array>

namespace {

using namespace vantle;

constexpr std::array<double, 14> kMoments = {0.1, 0.25, 0.4, 0.52, 0.62, 0.8,  1.1,
                                             1.5, 1.8,  2.1, 2.4,  2.7,  2.88, 3.04};

bool writeShow(CeremonyVariant variant, QSizeF size, const QString& skill, const QDir& folder) {
    CeremonyFrameRenderer renderer = demoShow(variant, size, skill);
    bool written = true;
    for (const double t : kMoments) {
        const QString name =
            QStringLiteral("%1-%2.png").arg(ceremonyvariant::name(variant)).arg(t, 4, 'f', 2);
        written = showFrame(renderer, t).save(folder.filePath(name)) && written;
    }
    return written;
}

} // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 2 || arguments.size() == 3 || arguments.size() > 5) return 2;
    const QDir folder(arguments.at(1));
    QSizeF size(1440, 900);
    if (arguments.size() > 3) size = {arguments.at(2).toDouble(), arguments.at(3).toDouble()};
    const QString skill = arguments.value(4, QStringLiteral("Writing"));
    if (!folder.mkpath(QStringLiteral("."))) return 2;
    bool written = true;
    for (const CeremonyVariant variant : ceremonyvariant::all)
        written = writeShow(variant, size, skill, folder) && written;
    return written ? 0 : 1;
}
