// The custom keys of GNOME's settings, as the code under test meets them: by the tool gsettings.
#pragma once

#include "fakes/FakeProcessRunner.h"
#include "support/Buses.h"

#include <QMap>
#include <QString>
#include <QStringList>

#include <gtest/gtest.h>

namespace vantle::tests {

/// Answers each command when it is asked to. The daemon has a name on the bus.
class FakeCustomKeys {
public:
    const QString tool = QStringLiteral("/usr/bin/gsettings");
    const QString schema = QStringLiteral("org.gnome.settings-daemon.plugins.media-keys");
    const QString path =
        QStringLiteral("/org/gnome/settings-daemon/plugins/media-keys/custom-keybindings/vantle/");
    const QString keySchema = schema + QStringLiteral(".custom-keybinding:") + path;

    fakes::FakeProcessRunner runner;
    bool toolFails = false;
    QMap<QString, QString> values{{schema + QStringLiteral(" custom-keybindings"),
                                   QStringLiteral("@as []")}}; ///< by "schema key", as printed

    void appear() {
        ASSERT_TRUE(m_client.takeName(QStringLiteral("org.gnome.SettingsDaemon.MediaKeys")));
    }
    void disappear() {
        m_client.bus().interface()->unregisterService(
            QStringLiteral("org.gnome.SettingsDaemon.MediaKeys"));
    }

    [[nodiscard]] QString list() const {
        return values.value(schema + QStringLiteral(" custom-keybindings"));
    }
    void setList(const QString& printed) {
        values[schema + QStringLiteral(" custom-keybindings")] = printed;
    }
    [[nodiscard]] QString ofKey(const char* key) const {
        return values.value(keySchema + QLatin1Char(' ') + QLatin1String(key));
    }
    void choose(const QString& binding) {
        values[keySchema + QStringLiteral(" binding")] = QStringLiteral("'%1'").arg(binding);
    }

    /// The tool ends, once for each time that it was started.
    void settle() {
        for (; m_answered < runner.collected.size(); ++m_answered)
            runner.end(answer(runner.collected[m_answered]));
    }
    void settleOne() {
        const auto& command = runner.collected.at(m_answered++);
        runner.end(answer(command));
    }

private:
    ProcessRunner::Output answer(const Command& command) {
        EXPECT_EQ(command.program, tool);
        if (toolFails) return {1, {}};
        const QStringList& words = command.arguments;
        const QString name = words.value(1) + QLatin1Char(' ') + words.value(2);
        if (words.value(0) == QLatin1String("get"))
            return {0, values.value(name, QStringLiteral("''")).toUtf8() + '\n'};
        if (words.value(0) == QLatin1String("set")) {
            QString value = words.value(3);
            if (value.startsWith(QLatin1Char('"')))
                value = QStringLiteral("'%1'").arg(value.mid(1, value.size() - 2));
            values[name] = value;
        } else {
            values.removeIf(
                [&](auto entry) { return entry.key().startsWith(words.value(1) + u' '); });
        }
        return {0, {}};
    }

    BusClient m_client;
    std::size_t m_answered = 0;
};

} // namespace vantle::tests
