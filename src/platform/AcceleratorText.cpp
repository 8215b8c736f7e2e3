#include "platform/AcceleratorText.h"

#include <QHash>
#include <QRegularExpression>
#include <QStringList>

namespace vantle {

namespace {

/// In the order of the accelerator text.
const QStringList kModifiers{QStringLiteral("Ctrl"), QStringLiteral("Alt"), QStringLiteral("Shift"),
                             QStringLiteral("Super")};

QString modifierOf(const QString& word) {
    static const QHash<QString, int> names{
        {QStringLiteral("ctrl"), 0},    {QStringLiteral("control"), 0},
        {QStringLiteral("primary"), 0}, {QStringLiteral("alt"), 1},
        {QStringLiteral("mod1"), 1},    {QStringLiteral("shift"), 2},
        {QStringLiteral("super"), 3},   {QStringLiteral("logo"), 3},
        {QStringLiteral("meta"), 3},    {QStringLiteral("mod4"), 3},
    };
    return kModifiers.value(names.value(word.toLower(), -1));
}

} // namespace

QString acceleratorText(const QString& accelerator) {
    static const QRegularExpression word(QStringLiteral("\\w+"));
    QStringList modifiers, keys;
    for (auto words = word.globalMatch(accelerator); words.hasNext();) {
        const QString each = words.next().captured();
        if (each.compare(QLatin1String("press"), Qt::CaseInsensitive) == 0) continue;
        const QString modifier = modifierOf(each);
        if (modifier.isEmpty())
            keys << each.left(1).toUpper() + each.mid(1);
        else
            modifiers << modifier;
    }
    QStringList ordered;
    for (const QString& modifier : kModifiers)
        if (modifiers.contains(modifier)) ordered << modifier;
    const QString text = (ordered + keys).join(QLatin1Char('+'));
    return text == QLatin1String("Alt+Super+B") ? QString() : text;
}

} // namespace vantle
