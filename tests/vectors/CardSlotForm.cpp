// card_slot: the arbiter of the corner, asked by cards whose closures ask it in turn.
#include "app/TopRightCardSlot.h"
#include "vectors/Script.h"
#include "vectors/forms.h"

#include <array>
#include <map>
#include <utility>

namespace vantle::vectors {

namespace {

using Kind = TopRightCardSlot::Kind;

constexpr std::array kKinds = {std::pair("prompt", Kind::Prompt),
                               std::pair("recovery", Kind::Recovery),
                               std::pair("summary", Kind::Summary)};

Kind kindNamed(const QString& name) {
    for (const auto& [text, kind] : kKinds)
        if (name == QLatin1String(text)) return kind;
    return Kind::Prompt;
}

QString nameOf(Kind kind) {
    for (const auto& [text, candidate] : kKinds)
        if (kind == candidate) return QLatin1String(text);
    return {};
}

class CardSlotDriver {
public:
    explicit CardSlotDriver(const QJsonObject& input)
        : m_cards(input[QLatin1String("cards")].toObject()) {}

    [[nodiscard]] QJsonObject perform(const QJsonObject& event) {
        const QJsonValue result = play(event);
        return {{QStringLiteral("result"), result},
                {QStringLiteral("events"), std::exchange(m_events, {})},
                {QStringLiteral("holder"), holder()},
                {QStringLiteral("queued"), m_slot.hasQueued()}};
    }

private:
    QJsonValue play(const QJsonObject& event) {
        const QString op = operation(event);
        const auto owner = ownerNamed(event[QLatin1String("owner")].toString());
        const QString tag = event[QLatin1String("tag")].toString();
        if (op == QLatin1String("request"))
            return m_slot.request(owner, kindNamed(event[QLatin1String("kind")].toString()),
                                  closure(tag, "evict", "onEvict"),
                                  event[QLatin1String("represent")].toBool()
                                      ? closure(tag, "represent", "onRepresent")
                                      : std::function<void()>());
        if (op == QLatin1String("summaryShow"))
            m_slot.takeForSummary(owner, closure(tag, "evict", "onEvict"));
        else if (op == QLatin1String("release"))
            m_slot.release(owner);
        else
            return unknown(op);
        return QJsonValue::Null;
    }

    /// What a card does when it is called: notes that, then plays what the case says.
    std::function<void()> closure(const QString& tag, const char* what, const char* script) {
        return [this, tag, what, script] {
            m_events << QJsonArray{QLatin1String(what), tag};
            for (const QJsonValue value : m_cards[tag][QLatin1String(script)].toArray()) {
                const QJsonObject event = value.toObject();
                const QJsonValue result = play(event);
                if (operation(event) == QLatin1String("request"))
                    m_events << QJsonArray{QStringLiteral("nestedRequest"),
                                           event[QLatin1String("tag")], result};
            }
        };
    }

    TopRightCardSlot::Owner ownerNamed(const QString& name) {
        return &m_owners.try_emplace(name, name).first->second;
    }

    [[nodiscard]] QJsonValue holder() const {
        if (!m_slot.holder()) return QJsonValue::Null;
        return QJsonObject{
            {QStringLiteral("owner"), *static_cast<const QString*>(m_slot.holder()->owner)},
            {QStringLiteral("kind"), nameOf(m_slot.holder()->kind)}};
    }

    const QJsonObject m_cards;
    std::map<QString, QString> m_owners; ///< each known by where its name stands
    QJsonArray m_events;
    TopRightCardSlot m_slot;
};

} // namespace

Form cardSlotForm() {
    Form form;
    form.name = QStringLiteral("card_slot");
    form.answer = [](const Case& item) {
        CardSlotDriver driver(item.input);
        return playScript(item, [&](const QJsonObject& event) { return driver.perform(event); });
    };
    return form;
}

} // namespace vantle::vectors
