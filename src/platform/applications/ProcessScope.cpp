#include "platform/applications/ProcessScope.h"

#include "platform/applications/Interpreters.h"

#include <QFile>
#include <QList>
#include <QRegularExpression>

namespace vantle {

namespace {

/// Longest file read from /proc, in bytes.
constexpr qint64 kMaxBytes = 16384;

QByteArray contentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.read(kMaxBytes) : QByteArray();
}

/// Decodes "\x2d" and other escapes in unit names.
QString unescaped(const QByteArray& name) {
    QByteArray text;
    for (qsizetype i = 0; i < name.size(); ++i) {
        bool isHex = false;
        if (name.mid(i, 2) == "\\x") {
            const int code = name.mid(i + 2, 2).toInt(&isHex, 16);
            if (isHex) text += static_cast<char>(code);
        }
        if (isHex)
            i += 3;
        else
            text += name[i];
    }
    return QString::fromUtf8(text);
}

/// "app-{launcher}-{id}-{n}.scope", "app-{id}-{n}.scope", "app-{launcher}-{id}@{n}.service" or
/// without launcher. Dashes of the id are escaped, so plain ones separate.
QString idOfUnit(QByteArray unit) {
    if (!unit.startsWith("app-")) return {};
    QList<QByteArray> parts;
    if (unit.endsWith(".scope")) {
        parts = unit.chopped(6).split('-');
        if (parts.size() < 3) return {};
        parts.removeLast();
    } else if (unit.endsWith(".service")) {
        unit.chop(8);
        if (const qsizetype at = unit.indexOf('@'); at >= 0) unit.truncate(at);
        parts = unit.split('-');
    }
    return parts.size() < 2 ? QString() : unescaped(parts.last());
}

/// "snap.{name}.{app}" followed by a dash or a dot.
QString idOfSnap(const QByteArray& unit) {
    static const QRegularExpression kForm(
        QStringLiteral("^snap\\.([a-z0-9-]+)\\.([A-Za-z0-9-]+?)"
                       "(?:-[0-9a-f]{8}-[0-9a-f-]{27}|-[0-9]+)?\\.(?:scope|service)$"));
    const auto match = kForm.match(QString::fromUtf8(unit));
    return match.hasMatch() ? match.captured(1) + QLatin1Char('_') + match.captured(2) : QString();
}

QString idOfFlatpak(const QByteArray& info) {
    bool inApplication = false;
    for (const QByteArray& bytes : info.split('\n')) {
        const QByteArray line = bytes.trimmed();
        if (line.startsWith('[')) inApplication = line == "[Application]";
        if (inApplication && line.startsWith("name=")) return QString::fromUtf8(line.sliced(5));
    }
    return {};
}

} // namespace

ProcessScope ProcessScope::parse(const QByteArray& cgroup, const QByteArray& flatpakInfo) {
    ProcessScope scope;
    scope.sandboxId = idOfFlatpak(flatpakInfo);
    for (const QByteArray& line : cgroup.split('\n')) {
        // "0::/user.slice/.../app.slice/app-....scope"; the innermost unit with an id.
        const QList<QByteArray> units = line.mid(line.lastIndexOf(':') + 1).split('/');
        for (qsizetype i = units.size() - 1; i >= 0 && scope.unitId.isEmpty(); --i) {
            const QByteArray& unit = units[i];
            if (scope.sandboxId.isEmpty()) scope.sandboxId = idOfSnap(unit);
            scope.unitId = idOfUnit(unit);
            if (scope.sandboxId.isEmpty() && unit.startsWith("app-flatpak-"))
                scope.sandboxId = scope.unitId;
        }
    }
    return scope;
}

ProcessScope ProcessScope::read(qint64 processId) {
    const QString folder = QStringLiteral("/proc/%1/").arg(processId);
    ProcessScope scope = parse(contentOf(folder + QStringLiteral("cgroup")),
                               contentOf(folder + QStringLiteral("root/.flatpak-info")));
    scope.program =
        QFile::symLinkTarget(folder + QStringLiteral("exe")).section(QLatin1Char('/'), -1);
    if (interpreters::isOne(scope.program))
        scope.script =
            interpreters::scriptOf(contentOf(folder + QStringLiteral("cmdline")).split('\0'));
    return scope;
}

} // namespace vantle
