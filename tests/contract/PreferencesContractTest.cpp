// What every preference store promises.
#include "fakes/MemoryPreferences.h"
#include "platform/posix/PosixFileSystem.h"
#include "platform/posix/SettingsPreferences.h"
#include "support/QtPrinters.h"

#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <rapidcheck/gtest.h>

#include <cmath>
#include <functional>
#include <limits>

namespace vantle {
namespace {

const QString kKey = QStringLiteral("goal.dailyHours");
const QString kOther = QStringLiteral("wrapped.seen.2026-9");

/// A store, and the way to another one that sees what the first has kept.
class PreferencesWorld {
public:
    virtual ~PreferencesWorld() = default;
    [[nodiscard]] virtual Preferences& store() = 0;
    /// Ends the run of the program and begins the next.
    virtual void restart() = 0;
};

class SettingsWorld final : public PreferencesWorld {
public:
    [[nodiscard]] Preferences& store() override { return *m_store; }
    void restart() override {
        m_store.reset();
        m_store = make();
    }

private:
    [[nodiscard]] std::unique_ptr<SettingsPreferences> make() {
        return std::make_unique<SettingsPreferences>(
            m_files, m_directory.path() + QStringLiteral("/Vantle/preferences.ini"));
    }

    const QTemporaryDir m_directory;
    PosixFileSystem m_files;
    std::unique_ptr<SettingsPreferences> m_store = make();
};

class MemoryWorld final : public PreferencesWorld {
public:
    [[nodiscard]] Preferences& store() override { return m_store; }
    void restart() override {}

private:
    fakes::MemoryPreferences m_store;
};

struct PreferencesMaker {
    const char* name;
    std::function<std::unique_ptr<PreferencesWorld>()> make;
};

class PreferencesContract : public testing::TestWithParam<PreferencesMaker> {
protected:
    PreferencesContract() { listen(); }

    [[nodiscard]] Preferences& store() const { return m_world->store(); }
    void restart() {
        m_world->restart();
        m_changes.clear();
        listen();
    }

    QStringList m_changes; ///< the keys that the store reported since the start

private:
    void listen() {
        QObject::connect(&store(), &Preferences::changed, &store(),
                         [this](const QString& key) { m_changes += key; });
    }

    const std::unique_ptr<PreferencesWorld> m_world = GetParam().make();
};

INSTANTIATE_TEST_SUITE_P(
    , PreferencesContract,
    testing::Values(PreferencesMaker{"Settings", [] { return std::make_unique<SettingsWorld>(); }},
                    PreferencesMaker{"Memory", [] { return std::make_unique<MemoryWorld>(); }}),
    [](const auto& test) { return std::string(test.param.name); });

TEST_P(PreferencesContract, AnAbsentKeyHasNoValueOfAnyType) {
    EXPECT_EQ(store().boolean(kKey), std::nullopt);
    EXPECT_EQ(store().integer(kKey), std::nullopt);
    EXPECT_EQ(store().number(kKey), std::nullopt);
    EXPECT_EQ(store().string(kKey), std::nullopt);
}

TEST_P(PreferencesContract, KeepsValuesOfEachTypeOverARestart) {
    store().setBoolean(QStringLiteral("yes"), true);
    store().setBoolean(QStringLiteral("no"), false);
    store().setInteger(QStringLiteral("least"), std::numeric_limits<qint64>::min());
    store().setNumber(kKey, 2.1);
    store().setString(QStringLiteral("skill.lastUsed"), QStringLiteral("building"));
    for (int run = 0; run < 2; ++run) {
        EXPECT_EQ(store().boolean(QStringLiteral("yes")), true);
        EXPECT_EQ(store().boolean(QStringLiteral("no")), false);
        EXPECT_EQ(store().integer(QStringLiteral("least")), std::numeric_limits<qint64>::min());
        EXPECT_EQ(store().number(kKey), 2.1);
        EXPECT_EQ(store().string(QStringLiteral("skill.lastUsed")), QStringLiteral("building"));
        restart();
    }
}

TEST_P(PreferencesContract, KeepsTextsWithEveryCharacterThatFilesTreatSpecially) {
    const QStringList texts{
        QString(),
        QStringLiteral("a, b, c"),
        QStringLiteral("\"quoted\" 'and' `more`"),
        QStringLiteral("  blanks around  "),
        QStringLiteral("semi;colon # hash = equals"),
        QStringLiteral("@Invalid()"),
        QStringLiteral("@@"),
        QStringLiteral("100 % C:\\path\\n"),
        QStringLiteral("line\nbreak\r\ttab"),
        QStringLiteral("[General]"),
        QStringLiteral("Z\u00fcrich \U0001F9F1 \u2028 \u05d0"),
    };
    for (int i = 0; i < texts.size(); ++i)
        store().setString(QStringLiteral("text.%1").arg(i), texts[i]);
    restart();
    for (int i = 0; i < texts.size(); ++i)
        EXPECT_EQ(store().string(QStringLiteral("text.%1").arg(i)), texts[i]) << i;
}

TEST_P(PreferencesContract, KeepsKeysAsTheyAreNamed) {
    for (const QString& key : {kKey, kOther, QStringLiteral("UPPER"), QStringLiteral("upper")})
        store().setString(key, key);
    restart();
    for (const QString& key : {kKey, kOther, QStringLiteral("UPPER"), QStringLiteral("upper")})
        EXPECT_EQ(store().string(key), key);
}

TEST_P(PreferencesContract, AValueThatIsNotOfTheTypeAskedForIsAbsent) {
    for (const char* text : {"abc", "", "12abc", "1,5", "yes", "nan", "inf", "-inf", "1e999"}) {
        store().setString(kKey, QLatin1String(text));
        EXPECT_EQ(store().number(kKey), std::nullopt) << text;
        EXPECT_EQ(store().integer(kKey), std::nullopt) << text;
        EXPECT_EQ(store().boolean(kKey), std::nullopt) << text;
    }
    for (const char* text : {"1.5", "2.0", "9223372036854775808", "0x10"}) {
        store().setString(kKey, QLatin1String(text));
        EXPECT_EQ(store().integer(kKey), std::nullopt) << text;
    }
    for (const char* text : {"2", "-1", "on", "truely"}) {
        store().setString(kKey, QLatin1String(text));
        EXPECT_EQ(store().boolean(kKey), std::nullopt) << text;
    }
}

TEST_P(PreferencesContract, ReadsTheFormsThatPeopleWrite) {
    for (const char* text : {"true", "1", "True", "TRUE"}) {
        store().setString(kKey, QLatin1String(text));
        EXPECT_EQ(store().boolean(kKey), true) << text;
    }
    for (const char* text : {"false", "0", "False"}) {
        store().setString(kKey, QLatin1String(text));
        EXPECT_EQ(store().boolean(kKey), false) << text;
    }
    store().setString(kKey, QStringLiteral("180"));
    EXPECT_EQ(store().number(kKey), 180.0);
    EXPECT_EQ(store().integer(kKey), 180);
    store().setNumber(kKey, 2);
    EXPECT_EQ(store().integer(kKey), 2);
    EXPECT_EQ(store().string(kKey), QStringLiteral("2"));
}

TEST_P(PreferencesContract, ARemovedKeyIsAbsentAfterARestartToo) {
    store().setNumber(kKey, 2);
    store().setNumber(kOther, 3);
    restart();
    store().remove(kKey);
    EXPECT_EQ(store().number(kKey), std::nullopt);
    restart();
    EXPECT_EQ(store().number(kKey), std::nullopt);
    EXPECT_EQ(store().number(kOther), 3.0);
}

TEST_P(PreferencesContract, RemovingAllLeavesNothing) {
    store().setNumber(kKey, 2);
    restart();
    store().setBoolean(kOther, true);
    store().removeAll();
    for (int run = 0; run < 2; ++run) {
        EXPECT_EQ(store().string(kKey), std::nullopt);
        EXPECT_EQ(store().string(kOther), std::nullopt);
        restart();
    }
    store().setNumber(kKey, 4);
    restart();
    EXPECT_EQ(store().number(kKey), 4.0) << "the store can be used again";
}

TEST_P(PreferencesContract, ReportsEachChangeWithinTheCall) {
    store().setNumber(kKey, 2);
    EXPECT_EQ(m_changes, QStringList{kKey});
    store().setBoolean(kOther, false);
    store().setBoolean(kOther, false);
    EXPECT_EQ(m_changes, (QStringList{kKey, kOther, kOther})) << "a write is a write";
    m_changes.clear();
    store().remove(kKey);
    store().remove(kKey);
    EXPECT_EQ(m_changes, QStringList{kKey}) << "what is absent can't be removed";
    m_changes.clear();
    store().setNumber(kKey, 2);
    store().removeAll();
    m_changes.sort();
    EXPECT_EQ(m_changes, (QStringList{kKey, kKey, kOther}));
}

TEST_P(PreferencesContract, AListenerSeesTheNewValue) {
    std::optional<double> seen;
    QObject::connect(&store(), &Preferences::changed, &store(),
                     [&](const QString& key) { seen = store().number(key); });
    store().setNumber(kKey, 2);
    EXPECT_EQ(seen, 2.0);
    store().remove(kKey);
    EXPECT_EQ(seen, std::nullopt);
}

TEST_P(PreferencesContract, EveryFiniteNumberReadsBackTheSame) {
    rc::check([this](double number) {
        RC_PRE(std::isfinite(number));
        store().setNumber(kKey, number);
        RC_ASSERT(store().number(kKey) == number);
    });
}

} // namespace
} // namespace vantle
