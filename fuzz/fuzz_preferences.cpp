// A preferences file of any bytes: it can be read and changed, and a change touches only its key.
#include "Input.h"
#include "platform/PreferenceText.h"
#include "platform/WholeFile.h"
#include "platform/posix/PosixFileSystem.h"
#include "platform/posix/SettingsPreferences.h"
#include "tracking/Settings.h"

#include <QFile>
#include <QTemporaryDir>

#include <cmath>

namespace vantle::fuzz {
namespace {

const QString kKey = QStringLiteral("fuzz.key");

void checkText(const QString& text) {
    if (const auto value = preferencetext::number(text))
        promise(preferencetext::number(preferencetext::fromNumber(*value)) == value,
                "a number reads back");
    if (const auto value = preferencetext::integer(text))
        promise(preferencetext::integer(preferencetext::fromInteger(*value)) == value,
                "an integer reads back");
}

void checkValues(const Preferences& preferences) {
    const double idle = settings::idleThresholdSeconds.read(preferences);
    promise(std::isfinite(idle) && idle >= 10.0, "an absence takes ten seconds at least");
    static_cast<void>(settings::autoMode.read(preferences));
    static_cast<void>(settings::projectName.read(preferences));
}

} // namespace
} // namespace vantle::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantle;
    const QByteArray content = fuzz::viewOf(data, size).toByteArray();
    fuzz::checkText(QString::fromUtf8(content));

    static const QTemporaryDir folder(QStringLiteral("/dev/shm/vantle-fuzz-XXXXXX"));
    // A path of its own each time: QSettings remembers what it read by path and time.
    static int number = 0;
    const QString path = folder.filePath(QString::number(++number));
    PosixFileSystem files;
    fuzz::promise(createFile(files, path, content).ok(), "the disk of this test has room");
    const QString told =
        QString::fromUtf8(content.first(std::min<qsizetype>(size, 40))).remove(QChar::Null);
    const QString project = [&] {
        SettingsPreferences preferences(files, path);
        fuzz::checkValues(preferences);
        preferences.setString(fuzz::kKey, told);
        fuzz::checkValues(preferences);
        return settings::projectName.read(preferences);
    }();
    {
        const SettingsPreferences again(files, path);
        fuzz::promise(again.string(fuzz::kKey) == told, "a change reads back");
        fuzz::promise(settings::projectName.read(again) == project, "and disturbs no other key");
    }
    const auto copy = files.readAll(path + QStringLiteral(".damaged"));
    fuzz::promise(!copy || copy.value() == content, "a copy of a damaged file has its bytes");
    QFile::remove(path);
    QFile::remove(path + QStringLiteral(".damaged"));
    return 0;
}
