// KDE's window manager on the bus of a test: it runs the scripts that it is given.
#pragma once

#include "support/Buses.h"

#include <QDBusMessage>
#include <QFile>
#include <QJSEngine>
#include <QJSValue>
#include <QObject>
#include <QStringList>

#include <gtest/gtest.h>

#include <memory>
#include <utility>

namespace vantle::tests {

enum class KWinVersion { Five, Six };

/// A script that runs, with the names of that version.
class FakeKWinScript final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.kwin.Script")

public:
    FakeKWinScript(BusClient& client, KWinVersion version, QString file)
        : m_client(client)
        , m_version(version)
        , m_file(std::move(file)) {}

    Q_INVOKABLE void run() {
        EXPECT_FALSE(m_isRunning) << "it is run once";
        m_isRunning = true;
        m_engine.globalObject().setProperty(QStringLiteral("kwin"), m_engine.newQObject(this));
        QJSEngine::setObjectOwnership(this, QJSEngine::CppOwnership);
        evaluate(QStringLiteral(R"(
            function signal() {
                const heard = [];
                return { connect: f => heard.push(f),
                         disconnect: f => { const at = heard.indexOf(f);
                                            if (at < 0) throw new Error("not connected");
                                            heard.splice(at, 1); },
                         fire: (...given) => heard.slice().forEach(f => f(...given)) };
            }
            function callDBus(...given) { kwin.call(given); }
            this.workspace = { %1: signal() };
            function make(id) {
                return { desktopFileName: id, resourceClass: id, resourceName: id, pid: 4711,
                         desktopWindow: id === "desktop", dock: id === "panel",
                         desktopFileNameChanged: signal(), windowClassChanged: signal() };
            }
            this.shown = null;
            function activate(id) {
                shown = id === "" ? null : make(id);
                workspace.activeClient = workspace.activeWindow = shown;
                (workspace.windowActivated || workspace.clientActivated).fire(shown);
            }
            function rename(id) { shown.desktopFileName = id; shown.desktopFileNameChanged.fire(); }
        )")
                     .arg(m_version == KWinVersion::Six ? QStringLiteral("windowActivated")
                                                        : QStringLiteral("clientActivated")));
        QFile file(m_file);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << "the script is there until it runs";
        evaluate(QString::fromUtf8(file.readAll()));
    }
    /// Empty for no window.
    void activate(const QString& id) { evaluate(QStringLiteral("activate('%1')").arg(id)); }
    void rename(const QString& id) { evaluate(QStringLiteral("rename('%1')").arg(id)); }
    [[nodiscard]] bool isRunning() const { return m_isRunning; }

    Q_INVOKABLE void call(const QVariantList& given) {
        ASSERT_GE(given.size(), 4);
        auto message = QDBusMessage::createMethodCall(given[0].toString(), given[1].toString(),
                                                      given[2].toString(), given[3].toString());
        message.setArguments(given.mid(4));
        m_client.bus().send(message);
    }

private:
    void evaluate(const QString& source) {
        const QJSValue result = m_engine.evaluate(source);
        EXPECT_FALSE(result.isError()) << result.toString().toStdString();
    }

    BusClient& m_client;
    const KWinVersion m_version;
    const QString m_file;
    QJSEngine m_engine;
    bool m_isRunning = false;
};

/// The object that loads scripts.
class FakeKWin final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.kwin.Scripting")

public:
    explicit FakeKWin(KWinVersion version) : m_version(version) {}

    void appear() {
        m_client.bus().registerObject(QStringLiteral("/Scripting"), this,
                                      QDBusConnection::ExportAllInvokables);
        ASSERT_TRUE(m_client.takeName(QStringLiteral("org.kde.KWin")));
    }
    void disappear() {
        m_script.reset();
        m_client.leave();
    }

    Q_INVOKABLE int loadScript(const QString& file, const QString& name) {
        calls.append(QStringLiteral("load"));
        if (m_script || refuses) return -1; // that name is loaded already
        m_name = name;
        m_script = std::make_unique<FakeKWinScript>(m_client, m_version, file);
        m_client.bus().registerObject(m_version == KWinVersion::Six
                                          ? QStringLiteral("/Scripting/Script7")
                                          : QStringLiteral("/7"),
                                      m_script.get(), QDBusConnection::ExportAllInvokables);
        return 7;
    }
    Q_INVOKABLE bool unloadScript(const QString& name) {
        calls.append(QStringLiteral("unload"));
        if (!m_script || name != m_name) return false;
        m_script.reset();
        return true;
    }

    [[nodiscard]] bool isScriptRunning() const { return m_script && m_script->isRunning(); }
    [[nodiscard]] FakeKWinScript* script() const { return m_script.get(); }
    QStringList calls;
    bool refuses = false; ///< loads nothing

private:
    const KWinVersion m_version;
    BusClient m_client;
    QString m_name;
    std::unique_ptr<FakeKWinScript> m_script;
};

} // namespace vantle::tests
