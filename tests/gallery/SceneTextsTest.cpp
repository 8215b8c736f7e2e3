// Whether each scene of the gallery can be read in the pseudo-locale, and in German.
#include "gallery/PseudoLocale.h"
#include "gallery/Scenes.h"
#include "gallery/Stage.h"
#include "gallery/TextFaults.h"
#include "launch/Catalogues.h"

#include <QCoreApplication>
#include <QFile>
#include <QHash>
#include <QLocale>
#include <QQuickItem>
#include <QRegularExpression>
#include <QStringList>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

namespace vantle {
namespace {

/// The user's own names that are as long as they may be.
const QStringList kLongNames = {
    QStringLiteral("Wohnungsbaugesellsch"),
    QStringLiteral("WWWWWWWWWWWWWWWWWWWW"),
    QStringLiteral("Qualitätsmanagement"),
    QStringLiteral("ניהול פרויקט ופגישות"),
    QStringLiteral("برنامه‌ریزی هفتگی"),
    QStringLiteral("تخطيط الأسبوع القادم"),
    QStringLiteral("Visual Paradigm Community Edition"),
    QStringLiteral("A Program With a Remarkably Long Name and an Edition \\(Nightly\\)"),
};

/// What is no text of the program: what the scenes have as the user's own, dates as their locale
/// writes them, and what is English everywhere by decision (docs/development.md, Texts).
const QStringList kOwn = {
    // skills and the project
    QStringLiteral("Founder Ops|Connections|Distribution|Marketing|Design|Build|Investors|Support"),
    QStringLiteral("Research|Lumen|Vantle"),
    // applications, commands, files
    QStringLiteral("Thunderbird|Terminal|Ledger|Blender|Video Player|GIMP|Firefox"),
    QStringLiteral("Deep Work On|Deep Work Off|Call Mode|sessions\\.jsonl"),
    QStringLiteral("gdbus call .*$"),
    // notes, by their beginning; a field may show the end of one
    QStringLiteral("^(Webhook|Call with|Drafted|Log reader|Settings page|Invoices|Landing page|"
                   "The (importer|webhook|landing page|settings|queue)|https://).*$"),
    QStringLiteral("^.*(restart|Ines|דנה).*$|^x$|^.*Wrote the letter.*$|^invoice $"),
    // the same as a row reads them out, between its date and its skill
    QStringLiteral(
        "Packaging for three desktops|Import of the old export format|"
        "Settings page: one column(, captions under each row\\.)?|The importer now .*reader\\."),
    // scripts of which the program has no words
    QStringLiteral("[\\x{0590}-\\x{06FF}\\x{200C}]+"),
    // keys, and colours by their numbers
    QStringLiteral("\\b(Ctrl|Alt|Super|Comma)\\b|\\b[0-9A-F]{6}\\b"),
    // dates and times
    QStringLiteral("((Mon|Tue|Wed|Thu|Fri|Sat|Sun)\\w*, )?(Jan|Feb|Mar|Apr|May|Jun|Jul|Aug|Sep|Oct|"
                   "Nov|Dec)[a-z]*\\.?( \\d+)?|\\d+(:\\d\\d)?[ \\x{A0}\\x{202F}](AM|PM)"),
    // the digest of notes with its themes, the narrative, the details of an error
    QStringLiteral("^Your notes kept returning to .*$|^(webhook|page|landing|retries|and|machine|"
                   "middle|ines)( \\w+)?$|q{20,}"),
    QStringLiteral("^.* this week, mostly .*$"),
    QStringLiteral("Permission denied \\(fault in [^)]*\\)"),
};

/// Whether it shows the kit, in words of its own.
bool isSampler(const std::string& scene) {
    return scene.starts_with("kit-") || scene == "personas";
}

SampleData dataOf(const std::string& scene) {
    SampleData data;
    data.longNames = kLongNames;
    const QString pattern =
        isSampler(scene) ? QStringLiteral(".*") : (kLongNames + kOwn).join(QLatin1Char('|'));
    data.own = QRegularExpression(pattern, QRegularExpression::CaseInsensitiveOption |
                                               QRegularExpression::DotMatchesEverythingOption);
    return data;
}

std::vector<std::string> sceneNames() {
    std::vector<std::string> names;
    for (const Scene& scene : allScenes())
        names.push_back(scene.name.toStdString());
    return names;
}

Scene sceneNamed(const std::string& name) {
    const QList<Scene> scenes = allScenes();
    return *std::ranges::find(scenes, QString::fromStdString(name), &Scene::name);
}

/// The German words of each text that has others there.
QHash<QString, QString> germanTexts() {
    QFile file(QStringLiteral(VANTLE_TRANSLATIONS "/vantle_de.ts"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QHash<QString, QString> texts;
    QString source;
    for (QXmlStreamReader xml(&file); !xml.atEnd(); xml.readNext()) {
        if (!xml.isStartElement()) continue;
        if (xml.name() == QLatin1String("source")) source = xml.readElementText();
        if (xml.name() != QLatin1String("translation")) continue;
        const QString german = xml.readElementText(QXmlStreamReader::IncludeChildElements);
        if (german != source) texts.insert(source, german);
    }
    return texts;
}

/// The faults of a scene without those of the list, which may only shrink, and what of the list is
/// no fault any more.
std::string newFaults(const std::string& scene, const char* language, const QStringList& faults) {
    const QString start =
        QStringLiteral("%1 %2: ").arg(QString::fromStdString(scene), QLatin1String(language));
    QFile file(QStringLiteral(VANTLE_TEST_DATA "/gallery/known_faults.txt"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QStringList known = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
    known.removeIf([&](const QString& line) { return !line.startsWith(start); });
    QString told;
    for (QString fault : faults) {
        fault = start + fault.replace(QLatin1Char('\n'), QLatin1Char(' '));
        if (known.removeAll(fault) == 0) told += fault + QLatin1Char('\n');
    }
    for (const QString& line : std::as_const(known))
        told += QStringLiteral("no fault any more: ") + line + QLatin1Char('\n');
    return told.toStdString();
}

QStringList named(const char* kind, QStringList texts) {
    for (QString& text : texts)
        text.prepend(QLatin1String(kind));
    return texts;
}

/// Sentences of the pseudo-locale that a name from the right stands in without its isolates.
QStringList turnedTexts(QQuickWindow& window) {
    static const QRegularExpression isolated(QStringLiteral("\\x{2068}[^\\x{2069}]*\\x{2069}"));
    // What a row reads out is a list of texts, not a sentence.
    static const QRegularExpression sentence(QStringLiteral("^\\[[^\\]]*\\]$"));
    static const QRegularExpression fromTheRight(QStringLiteral("[\\x{0590}-\\x{06FF}]"));
    QStringList texts = textsOf(window);
    texts.removeIf([](QString text) {
        return !text.contains(sentence) || !text.remove(isolated).contains(fromTheRight);
    });
    return texts;
}

/// The scene of that name, in the language that is installed at that time.
class SceneTextsTest : public testing::TestWithParam<std::string> {
protected:
    QQuickWindow& open() {
        m_stage.emplace(sceneNamed(GetParam()), true);
        EXPECT_EQ(m_stage->error(), QString());
        return m_stage->window();
    }

private:
    std::optional<Stage> m_stage;
};

TEST_P(SceneTextsTest, EachIsTranslatableAndHasRoomForAThirdMore) {
    PseudoLocale pseudo; // takes itself out when it goes
    QCoreApplication::installTranslator(&pseudo);
    QQuickWindow& window = open();
    const SampleData data = dataOf(GetParam());
    const QStringList faults = named("untranslated: ", untranslatedTexts(window, data)) +
                               named("not isolated: ", turnedTexts(window)) +
                               crampedTexts(window, data);
    EXPECT_EQ(newFaults(GetParam(), "pseudo", faults), "");
}

TEST_P(SceneTextsTest, EachIsGermanAndHasRoom) {
    static const QHash<QString, QString> german = germanTexts();
    const Catalogues catalogues({QStringLiteral("de")});
    QQuickWindow& window = open();
    QStringList english = textsOf(window);
    english.removeIf(
        [](const QString& text) { return isSampler(GetParam()) || !german.contains(text); });
    const QStringList faults =
        named("English: ", english) + crampedTexts(window, dataOf(GetParam()));
    EXPECT_EQ(newFaults(GetParam(), "de", faults), "");
}

INSTANTIATE_TEST_SUITE_P(Gallery, SceneTextsTest, testing::ValuesIn(sceneNames()),
                         [](const auto& about) {
                             std::string name = about.param;
                             std::ranges::replace(name, '-', '_');
                             return name;
                         });

} // namespace
} // namespace vantle
