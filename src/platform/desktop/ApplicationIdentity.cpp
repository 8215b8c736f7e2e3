#include "platform/desktop/ApplicationIdentity.h"

#include "platform/desktop/KnownApplications.h"

namespace vantle {

namespace {

/// Longest text of a window that is taken as an identity or a name, in UTF-16 units.
constexpr qsizetype kMaxText = 200;

class Search {
public:
    Search(const ProcessScope& scope, const DesktopEntryIndex& index)
        : m_scope(scope)
        , m_index(index) {}

    [[nodiscard]] const ApplicationEntry* entryFor(const WindowHints& hints) const {
        if (const auto* entry = withId(hints.applicationId)) return entry;
        if (const auto* entry = withId(m_scope.sandboxId)) return entry;
        for (const QString& mark : {hints.windowClass, hints.instance})
            if (const auto* entry = oneOf(m_index.byWindowClass(mark))) return entry;
        for (const QString& mark : {hints.windowClass, hints.instance}) {
            if (const auto* entry = withId(mark)) return entry;
            if (const auto* entry = oneOf(m_index.byLastComponent(mark))) return entry;
        }
        for (const QString& mark : {hints.windowClass, hints.instance, m_scope.program})
            if (const auto* entry = soleOf(m_index.byProgram(mark))) return entry;
        const auto* unit = withId(m_scope.unitId);
        return unit != nullptr && !unit->isTerminal ? unit : nullptr;
    }

private:
    [[nodiscard]] const ApplicationEntry* withId(const QString& id) const {
        return id.isEmpty() ? nullptr : m_index.byId(id);
    }
    [[nodiscard]] bool isUnit(const ApplicationEntry& entry) const {
        return entry.id.compare(m_scope.unitId, Qt::CaseInsensitive) == 0;
    }
    [[nodiscard]] const ApplicationEntry* oneOf(const DesktopEntryIndex::Matches& matches) const {
        for (const auto* match : matches)
            if (isUnit(*match)) return match;
        return matches.isEmpty() ? nullptr : matches.first();
    }
    /// A program that several entries start, as an interpreter or a suite, tells none of them.
    [[nodiscard]] const ApplicationEntry* soleOf(const DesktopEntryIndex::Matches& matches) const {
        for (const auto* match : matches)
            if (isUnit(*match)) return match;
        return matches.size() == 1 ? matches.first() : nullptr;
    }

    const ProcessScope& m_scope;
    const DesktopEntryIndex& m_index;
};

QString tidied(const QString& text) { return text.simplified().left(kMaxText); }

QString firstOf(std::initializer_list<QString> texts) {
    for (const QString& text : texts)
        if (const QString tidy = tidied(text); !tidy.isEmpty()) return tidy;
    return {};
}

} // namespace

Application resolveIdentity(const WindowHints& hints, const ProcessScope& scope,
                            const DesktopEntryIndex& index) {
    if (const ApplicationEntry* entry = Search(scope, index).entryFor(hints))
        return {knownapplications::identityOf(entry->id), entry->name};
    const QString id =
        firstOf({scope.sandboxId, hints.windowClass, hints.instance, hints.applicationId});
    return {knownapplications::identityOf(id),
            firstOf({hints.windowClass, hints.instance, hints.applicationId, id})};
}

} // namespace vantle
