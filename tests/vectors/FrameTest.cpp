#include "vectors/FileImage.h"
#include "vectors/Runner.h"
#include "vectors/Script.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vantle::vectors {
namespace {

using testing::HasSubstr;

QJsonValue json(const char* text) {
    return QJsonDocument::fromJson(QByteArray("[") + text + "]").array().at(0);
}

std::vector<std::string> differingPaths(const char* expected, const char* got,
                                        const Comparison& comparison = {}) {
    std::vector<std::string> paths;
    for (const Difference& found : differences(json(expected), json(got), comparison))
        paths.push_back(found.path.toStdString());
    return paths;
}

constexpr auto kFirst = "00000000-0000-4000-8000-000000000001";
constexpr auto kSecond = "00000000-0000-4000-8000-000000000002";
constexpr auto kMade = "3F2504E0-4F89-41D3-9A0C-0305E82C3301";
constexpr auto kMadeLater = "9B2504E0-4F89-41D3-9A0C-0305E82C3302";

QJsonValue text(const QString& value) { return QJsonValue(value); }
QString id(const char* value) { return QString::fromLatin1(value); }

Form formAnswering(const char* answer) {
    Form form;
    form.name = QStringLiteral("sample");
    form.answer = [answer](const Case&) { return json(answer); };
    return form;
}

Case caseExpecting(const char* expect) {
    Case item;
    item.name = QStringLiteral("a case");
    item.expect = json(expect);
    return item;
}

struct Outcome {
    Tally tally;
    std::string output;
};

Outcome run(const Form& form, const QList<Case>& cases) {
    QString output;
    QTextStream stream(&output);
    const Tally tally = runCases(form, cases, stream);
    stream.flush();
    return {tally, output.toStdString()};
}

TEST(VectorComparison, NamesThePlaceOfEachDifference) {
    EXPECT_THAT(differingPaths(R"({"a": [1, {"b": "x"}], "c": null})",
                               R"({"a": [1, {"b": "y"}], "c": null})"),
                testing::ElementsAre("a[1].b"));
}

TEST(VectorComparison, TellsAbsentFromNull) {
    EXPECT_THAT(differingPaths(R"({"result": null})", R"({})"), testing::ElementsAre("result"));
    EXPECT_THAT(differingPaths(R"({})", R"({"result": null})"), testing::ElementsAre("result"));
}

TEST(VectorComparison, SeesAListThatIsTooLongOrTooShort) {
    EXPECT_THAT(differingPaths("[1]", "[1, 2]"), testing::ElementsAre("[1]"));
    EXPECT_THAT(differingPaths("[1, 2]", "[1]"), testing::ElementsAre("[1]"));
}

TEST(VectorComparison, SeesAnEighthOfASecondInADate) {
    EXPECT_THAT(differingPaths("1772359200.125", "1772359200.0"), testing::SizeIs(1));
    EXPECT_THAT(differingPaths("1772359200", "1772359200.0"), testing::IsEmpty());
}

TEST(VectorComparison, ForgivesTheLastDigitsOfADouble) {
    EXPECT_THAT(differingPaths("0.1", "0.10000000000000002"), testing::IsEmpty());
}

TEST(VectorComparison, DoesNotTakeANumberForAnotherType) {
    EXPECT_THAT(differingPaths("1", "\"1\""), testing::SizeIs(1));
    EXPECT_THAT(differingPaths("1", "true"), testing::SizeIs(1));
}

TEST(VectorComparison, LeavesOutIgnoredKeysAndUnnamedMembersOfPartialObjects) {
    Comparison comparison;
    comparison.ignoredKeys = {QStringLiteral("debug")};
    comparison.partialObjects = {QStringLiteral("state")};
    EXPECT_THAT(differingPaths(R"({"debug": 1, "state": {"a": 1}})",
                               R"({"debug": 2, "state": {"a": 1, "b": 2}})", comparison),
                testing::IsEmpty());
    EXPECT_THAT(differingPaths(R"({"state": {"a": 1}})", R"({"state": {"a": 2}})", comparison),
                testing::ElementsAre("state.a"));
}

TEST(VectorIds, BindASymbolAtItsFirstSightAndKeepIt) {
    SymbolicIds ids;
    ids.bind(text(id(kFirst)), text(id(kMade)));
    ids.bind(text(id(kFirst)), text(id(kMadeLater)));
    EXPECT_EQ(ids.symbolic(text(id(kMade))), text(id(kFirst)));
    EXPECT_EQ(ids.symbolic(text(id(kMadeLater))), text(id(kMadeLater)));
    EXPECT_EQ(ids.actual(text(id(kFirst))), text(id(kMade)));
}

TEST(VectorIds, BindSymbolsWithinAText) {
    const QString before = QStringLiteral("{\"id\":\"%1\"}\n{\"id\":\"%2\"}");
    SymbolicIds ids;
    ids.bind(text(before.arg(id(kFirst), id(kSecond))),
             text(before.arg(id(kMade), id(kMadeLater))));
    EXPECT_EQ(ids.symbolic(text(id(kMadeLater))), text(id(kSecond)));
}

TEST(VectorIds, DoNotBindTwoSymbolsToOneId) {
    SymbolicIds ids;
    ids.bind(QJsonArray{id(kFirst), id(kSecond)}, QJsonArray{id(kMade), id(kMade)});
    EXPECT_EQ(ids.symbolic(QJsonArray{id(kMade), id(kMade)}),
              QJsonValue(QJsonArray{id(kFirst), id(kFirst)}));
}

TEST(VectorIds, DoNotBindWhatIsNoUpperCaseId) {
    SymbolicIds ids;
    ids.bind(text(id(kFirst)), text(id(kMade).toLower()));
    EXPECT_EQ(ids.symbolic(text(id(kMade).toLower())), text(id(kMade).toLower()));
}

TEST(VectorFiles, KeepTheirBytesThroughTheirDescription) {
    for (const QByteArray& bytes :
         {QByteArray(), QByteArray("a\n"), QByteArray("\xEF\xBB\xBF{}"), QByteArray("\xFF\xFE"),
          QByteArray("\xED\xA0\x80"), QByteArray("a\0b", 3)}) {
        const FileImage image{bytes, 0640};
        EXPECT_EQ(imageFromJson(imageToJson(image)), image) << bytes.toHex().toStdString();
    }
    EXPECT_EQ(imageToJson(std::nullopt), QJsonValue(QJsonValue::Null));
    EXPECT_EQ(imageFromJson(QJsonValue::Null), std::nullopt);
}

TEST(VectorFiles, HaveThePrivateModeWhereNoneIsGiven) {
    EXPECT_EQ(imageFromJson(json(R"({"text": "x"})"))->mode, 0600);
    EXPECT_EQ(imageFromJson(json(R"({"text": "x", "mode": "0644"})"))->mode, 0644);
}

TEST(VectorFiles, AreTextExactlyWhenTheyAreUtf8) {
    EXPECT_EQ(imageToJson(FileImage{"\xEF\xBB\xBF", 0600}),
              json(R"({"text": "\ufeff", "mode": "0600"})"));
    EXPECT_TRUE(imageToJson(FileImage{"\xFF", 0600}).toObject().contains(QLatin1String("base64")));
}

TEST(VectorScript, GivesLaterOperationsTheRealIds) {
    Case item;
    item.input = json(R"({"events": [{"op": "make"},
        {"op": "drop", "id": "00000000-0000-4000-8000-000000000001"}]})")
                     .toObject();
    item.expect = json(R"({"steps": [{"result": "00000000-0000-4000-8000-000000000001"}, {}]})");
    QString dropped;
    const QJsonValue got = playScript(item, [&](const QJsonObject& event) {
        dropped = event[QLatin1String("id")].toString();
        if (operation(event) != QLatin1String("make")) return QJsonObject{};
        return QJsonObject{{QStringLiteral("result"), id(kMade)}};
    });
    EXPECT_EQ(dropped, id(kMade));
    EXPECT_EQ(got, item.expect);
}

TEST(VectorRunner, PassesWhenEveryAnswerIsAsExpected) {
    const Outcome outcome = run(formAnswering("1"), {caseExpecting("1")});
    EXPECT_TRUE(outcome.tally.passed());
    EXPECT_EQ(outcome.output, "sample: 1 cases, 0 mismatches, 0 doubtful, 0 skipped\n");
}

TEST(VectorRunner, FailsAndTellsWhereAnAnswerDiffers) {
    const Outcome outcome = run(formAnswering("{\"a\": 2}"), {caseExpecting("{\"a\": 1}")});
    EXPECT_FALSE(outcome.tally.passed());
    EXPECT_THAT(outcome.output, HasSubstr("MISMATCH sample: a case"));
    EXPECT_THAT(outcome.output, HasSubstr("expected 1\n  got      2"));
}

TEST(VectorRunner, DoesNotFailOnADoubtfulCaseWithoutOtherReadings) {
    Case item = caseExpecting("1");
    item.doubtful = true;
    const Outcome outcome = run(formAnswering("2"), {item});
    EXPECT_TRUE(outcome.tally.passed());
    EXPECT_EQ(outcome.tally.doubtful, 1);
    EXPECT_THAT(outcome.output, HasSubstr("DOUBTFUL"));
}

TEST(VectorRunner, AcceptsAnotherReadingButNotAThirdAnswer) {
    Case item = caseExpecting("1");
    item.doubtful = true;
    item.alternatives = {json("2")};
    EXPECT_EQ(run(formAnswering("2"), {item}).tally.doubtful, 1);
    EXPECT_EQ(run(formAnswering("3"), {item}).tally.mismatches, 1);
}

TEST(VectorRunner, SkipsACaseWhoseFaultCannotBeInjected) {
    Case item = caseExpecting("1");
    item.needs = {QStringLiteral("write:a")};
    Form form = formAnswering("2");
    EXPECT_EQ(run(form, {item}).tally.skipped, 1);
    form.injects = [](const QString& fault) { return fault == QLatin1String("write:a"); };
    EXPECT_EQ(run(form, {item}).tally.mismatches, 1);
}

TEST(VectorRunner, DoesNotPassWithoutACaseThatRan) {
    EXPECT_FALSE(run(formAnswering("1"), {}).tally.passed());
    Case item = caseExpecting("1");
    item.needs = {QStringLiteral("disk full")};
    EXPECT_FALSE(run(formAnswering("1"), {item}).tally.passed());
}

TEST(VectorFolder, HoldsTheFileOfTheFormAndItsSubfolder) {
    const QTemporaryDir folder;
    const auto write = [&](const QString& name, const QByteArray& content) {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    };
    QDir(folder.path()).mkdir(QStringLiteral("sample"));
    write(QStringLiteral("sample.json"), R"([{"name": "one", "input": {"kind": "k"}}])");
    write(QStringLiteral("sample/more.json"), R"([{"name": "two", "kind": "top"}])");
    write(QStringLiteral("sample_models.json"), R"({})");
    const auto cases = loadCases(QStringLiteral("sample"), folder.path());
    ASSERT_TRUE(cases);
    ASSERT_EQ(cases.value().size(), 2);
    EXPECT_EQ(cases.value()[0].kind, QLatin1String("k"));
    EXPECT_EQ(cases.value()[1].kind, QLatin1String("top"));
    EXPECT_FALSE(
        loadCases(QStringLiteral("x"), folder.filePath(QStringLiteral("sample_models.json"))));
    EXPECT_FALSE(loadCases(QStringLiteral("x"), folder.filePath(QStringLiteral("missing.json"))));
}

} // namespace
} // namespace vantle::vectors
