// What a ceremony page says and asks for, of any bytes: it reads no file outside its folder, and
// what it is told can't leave the script that tells it.
#include "Input.h"
#include "ceremony/CeremonyPage.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <algorithm>

namespace vantle::fuzz {
namespace {

/// A page with a picture beside it, and a file that is none of its business.
class Folder {
public:
    Folder() {
        QDir().mkpath(m_folder.filePath(QStringLiteral("page/pictures")));
        for (const char* name : {"page/index.html", "page/pictures/a b.png", "secret"}) {
            QFile file(m_folder.filePath(QLatin1String(name)));
            promise(file.open(QIODevice::WriteOnly), "the disk of this test has room");
        }
        QFile::link(m_folder.filePath(QStringLiteral("secret")),
                    m_folder.filePath(QStringLiteral("page/link")));
    }
    [[nodiscard]] QString page() const {
        return m_folder.filePath(QStringLiteral("page/index.html"));
    }
    [[nodiscard]] QString inside() const {
        return QDir(m_folder.filePath(QStringLiteral("page"))).canonicalPath() + QLatin1Char('/');
    }

private:
    QTemporaryDir m_folder{QStringLiteral("/dev/shm/vantle-fuzz-XXXXXX")};
};

void checkAddress(const Folder& folder, const QUrl& address) {
    if (!ceremonypage::mayLoad(folder.page(), address) || !address.isLocalFile()) return;
    const QString file = QFileInfo(address.toLocalFile()).canonicalFilePath();
    promise(file.startsWith(folder.inside()), "a page reads only its own folder");
}

void checkTitle(const QString& title) {
    const QByteArray told = ceremonypage::configuration(CeremonyShow::Quick, CeremonyVariant::Nova,
                                                        0x123456, title, true);
    promise(std::ranges::all_of(told, [](char byte) { return byte >= ' '; }),
            "a configuration of one line of ASCII");
    promise(!told.contains('<'), "that can't end a script");
    promise(QJsonDocument::fromJson(told).isObject(), "and is JSON");
}

} // namespace
} // namespace vantle::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantle;
    const QByteArray bytes = fuzz::viewOf(data, size).toByteArray();
    const QJsonArray body = QJsonDocument::fromJson(bytes).array();
    static_cast<void>(ceremonypage::messageOf(body.isEmpty() ? QJsonValue() : body.first()));
    static const fuzz::Folder folder;
    fuzz::checkAddress(folder, QUrl::fromEncoded(bytes));
    fuzz::checkAddress(folder, QUrl::fromEncoded("file://" + folder.inside().toUtf8() + bytes));
    fuzz::checkTitle(QString::fromUtf8(bytes));
    return 0;
}
