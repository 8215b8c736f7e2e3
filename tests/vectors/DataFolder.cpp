#include "vectors/DataFolder.h"

#include <cerrno>

namespace vantle::vectors {

namespace {

using Operation = fakes::FaultyFileSystem::Operation;

const QString& supportDir() {
    static const QString path = QStringLiteral("/data/Vantle");
    return path;
}

QString pathOf(const QString& name) { return supportDir() + QLatin1Char('/') + name; }

struct Fault {
    QString verb;
    QString file;

    explicit Fault(const QString& name)
        : verb(name.section(QLatin1Char(':'), 0, 0))
        , file(name.section(QLatin1Char(':'), 1)) {}

    /// The operations that fail, each with the files it fails on.
    [[nodiscard]] QList<std::pair<Operation, QString>> operations() const {
        const QString temporary = QStringLiteral(".%1.*.tmp").arg(file);
        if (verb == QLatin1String("write"))
            return {{Operation::Write, file}, {Operation::Create, temporary}};
        if (verb == QLatin1String("chmod")) return {{Operation::SetMode, file}};
        if (verb == QLatin1String("read")) return {{Operation::Read, file}};
        if (verb == QLatin1String("remove")) return {{Operation::Remove, file}};
        if (verb == QLatin1String("disk full")) return {{Operation::Write, QStringLiteral("*")}};
        return {};
    }
};

} // namespace

DataFolder::DataFolder() { m_memory.setDirectory(supportDir(), 0700); }

void DataFolder::put(const QString& name, const std::optional<FileImage>& image) {
    if (image)
        m_memory.setContent(pathOf(name), image->bytes, image->mode);
    else if (m_memory.exists(pathOf(name)))
        m_memory.remove(pathOf(name)).ignore();
}

std::optional<FileImage> DataFolder::image(const QString& name) {
    const auto bytes = m_memory.content(pathOf(name));
    if (!bytes) return std::nullopt;
    return FileImage{*bytes, m_memory.mode(pathOf(name)).value()};
}

void DataFolder::setFault(const QString& fault, bool on) {
    const Fault wanted(fault);
    const int code = wanted.verb == QLatin1String("disk full") ? ENOSPC : EACCES;
    for (const auto& [operation, file] : wanted.operations()) {
        if (on)
            m_faulty.fail(operation, file, code);
        else
            m_faulty.heal(operation, file);
    }
}

bool DataFolder::knows(const QString& fault) { return !Fault(fault).operations().isEmpty(); }

QStringList DataFolder::names() const {
    QStringList names;
    for (const QString& path : m_memory.paths())
        if (path.startsWith(supportDir() + QLatin1Char('/')))
            names << path.sliced(supportDir().size() + 1);
    return names;
}

} // namespace vantle::vectors
