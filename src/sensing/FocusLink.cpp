#include "sensing/FocusLink.h"

#include "platform/ProcessRunner.h"

#include <QStringDecoder>

namespace vantle {

namespace {

QStringList namesIn(const std::optional<ProcessRunner::Output>& output) {
    if (!output || output->exitStatus != 0) return {};
    QStringDecoder decode(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decode(output->standardOutput);
    if (decode.hasError()) return {};
    return text.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

} // namespace

FocusLink::FocusLink(Preferences& preferences, ProcessRunner& runner, QString tool)
    : m_preferences(preferences)
    , m_runner(runner)
    , m_tool(std::move(tool)) {}

void FocusLink::listShortcuts(std::function<void(const QStringList&)> completion) {
    m_runner.collect(
        {m_tool, {QStringLiteral("list")}},
        [completion = std::move(completion)](const auto& output) { completion(namesIn(output)); });
}

void FocusLink::run(const Preference<QString>& shortcut) {
    if (!settings::focusLinked.read(m_preferences)) return;
    const QString name = shortcut.read(m_preferences);
    if (name.isEmpty()) return;
    (void)m_runner.startDetached({m_tool, {QStringLiteral("run"), name}}); // failure is ignored
}

} // namespace vantle
