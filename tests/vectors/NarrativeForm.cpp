// What a language model's answers are made into.
#include "fakes/FakeLanguageModel.h"
#include "fakes/VirtualTime.h"
#include "review/narrative/NarrativeText.h"
#include "review/narrative/NoteNarrative.h"
#include "vectors/NeutralRecords.h"
#include "vectors/forms.h"

namespace vantle::vectors {

namespace {

QStringList textsFromJson(const QJsonValue& list) {
    QStringList texts;
    for (const QJsonValue& item : list.toArray())
        texts += item.toString();
    return texts;
}

QJsonValue toJson(const std::vector<fakes::FakeLanguageModel::Call>& calls) {
    QJsonArray list;
    for (const auto& call : calls) {
        QJsonObject object{{QStringLiteral("op"), QStringLiteral("respond")},
                           {QStringLiteral("prompt"), call.text}};
        if (call.opens)
            object = {{QStringLiteral("op"), QStringLiteral("open")},
                      {QStringLiteral("instructions"), call.text}};
        list << object;
    }
    return list;
}

/// The k-th answer of the script for the k-th question.
QJsonValue weekly(const QJsonObject& input) {
    fakes::VirtualTime time;
    fakes::FakeLanguageModel model;
    model.available = input[QLatin1String("available")].toBool();
    const NoteNarrative narrative(model, time);
    const QJsonValue topSkill = input[QLatin1String("topSkill")];
    bool told = false;
    std::optional<QString> result;
    const auto request = narrative.weekly(
        input[QLatin1String("hoursSummary")].toString(),
        topSkill.isString() ? std::optional(topSkill.toString()) : std::nullopt,
        textsFromJson(input[QLatin1String("notes")]), [&](std::optional<QString> text) {
            told = true;
            result = std::move(text);
        });
    QJsonArray script = input[QLatin1String("script")].toArray();
    while (model.waiting() > 0 && !script.isEmpty()) {
        const QJsonValue text = script.takeAt(0)[QLatin1String("text")];
        model.answer(text.isString() ? std::optional(text.toString()) : std::nullopt);
    }
    time.advance(0);
    if (!told) return unknown(QStringLiteral("a request that never ends"));
    return QJsonObject{{QStringLiteral("result"), vectors::toJson(result)},
                       {QStringLiteral("calls"), toJson(model.calls)},
                       {QStringLiteral("unusedResponses"), script.size()}};
}

QJsonValue answer(const Case& item) {
    if (item.kind == QLatin1String("weekly")) return weekly(item.input);
    if (item.kind == QLatin1String("tidy")) {
        const auto sentence = narrativetext::tidy(item.input[QLatin1String("text")].toString());
        return QJsonObject{{QStringLiteral("result"), vectors::toJson(sentence)}};
    }
    return unknown(item.kind);
}

} // namespace

Form narrativeForm() {
    Form form;
    form.name = QStringLiteral("narrative");
    form.answer = answer;
    return form;
}

} // namespace vantle::vectors
