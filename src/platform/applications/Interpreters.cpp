#include "platform/applications/Interpreters.h"

#include <QRegularExpression>
#include <QStringList>

namespace vantle::interpreters {

namespace {

/// Names a script by its path: "ledger.py", or "ledger/main.py".
QString nameOf(const QString& path) {
    static const QRegularExpression kCommon(
        QStringLiteral("^(__main__|main|app|run|start|index|gui)(\\.[a-z]+)?$"));
    const QString base = path.section(QLatin1Char('/'), -1);
    return kCommon.match(base).hasMatch() ? path.section(QLatin1Char('/'), -2) : base;
}

} // namespace

bool isOne(const QString& program) {
    static const QRegularExpression kNames(
        QStringLiteral(
            "^(python|perl|ruby|node|nodejs|java|mono|lua|wish|tclsh|gjs|wine)[0-9.-]*$"),
        QRegularExpression::CaseInsensitiveOption);
    return kNames.match(program).hasMatch();
}

QString scriptOf(const QList<QByteArray>& arguments) {
    // Options followed by program text, and options that take the next argument.
    static const QList<QByteArray> kTexts{"-c", "-e", "--eval"};
    static const QList<QByteArray> kNames{"-m", "-jar"};
    static const QList<QByteArray> kValues{"-W", "-X", "-I", "-r", "-cp", "-classpath"};
    for (qsizetype i = 1; i < arguments.size(); ++i) {
        const QByteArray& argument = arguments[i];
        if (kTexts.contains(argument)) return {};
        if (kNames.contains(argument)) return nameOf(QString::fromUtf8(arguments.value(i + 1)));
        if (kValues.contains(argument))
            ++i;
        else if (!argument.startsWith('-'))
            return nameOf(QString::fromUtf8(argument));
    }
    return {};
}

} // namespace vantle::interpreters
