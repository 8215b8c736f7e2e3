#include "platform/applications/ApplicationIdentity.h"

#include "platform/applications/Interpreters.h"
#include "platform/applications/KnownApplications.h"

namespace vantle {

namespace {

/// Longest window text accepted as identity or name, in UTF-16 units.
constexpr qsizetype kMaxText = 200;

class Search {
public:
    Search(const ProcessScope& scope, const DesktopEntryIndex& index)
        : m_scope(scope)
        , m_index(index) {}

    [[nodiscard]] const ApplicationEntry* entryFor(const WindowHints& hints) const {
        if (const auto* entry = withId(hints.applicationId)) return entry;
        if (const auto* entry = ofSandbox(hints)) return entry;
        for (const QString& mark : {hints.windowClass, hints.instance})
            if (const auto* entry = oneOf(m_index.byWindowClass(mark))) return entry;
        for (const QString& mark : {hints.windowClass, hints.instance}) {
            if (const auto* entry = withId(mark)) return entry;
            if (const auto* entry = oneOf(m_index.byLastComponent(mark))) return entry;
        }
        for (const QString& mark :
             {hints.windowClass, hints.instance, m_scope.program, m_scope.script})
            if (const auto* entry = soleOf(m_index.byProgram(mark))) return entry;
        const auto* unit = withId(m_scope.unitId);
        return unit != nullptr && !unit->isTerminal ? unit : nullptr;
    }

private:
    [[nodiscard]] const ApplicationEntry* withId(const QString& id) const {
        const auto* entry = id.isEmpty() ? nullptr : m_index.byId(id);
        return entry != nullptr && !isInterpreter(*entry) ? entry : nullptr;
    }
    /// A suite has an entry per part in one sandbox; the window class tells them apart. Flatpak ids
    /// are "{app}.{part}", Snap ids "{snap}_{part}".
    [[nodiscard]] const ApplicationEntry* ofSandbox(const WindowHints& hints) const {
        if (m_scope.sandboxId.isEmpty()) return nullptr;
        const qsizetype snap = m_scope.sandboxId.indexOf(QLatin1Char('_'));
        const QString parts =
            snap < 0 ? m_scope.sandboxId + QLatin1Char('.') : m_scope.sandboxId.first(snap + 1);
        for (const QString& mark : {hints.windowClass, hints.instance})
            for (const auto* match : m_index.byWindowClass(mark))
                if (match->id.startsWith(parts, Qt::CaseInsensitive)) return match;
        return withId(m_scope.sandboxId);
    }
    /// Distributions have an entry per interpreter version for a session in a terminal; programs
    /// that it runs do not belong to it.
    [[nodiscard]] static bool isInterpreter(const ApplicationEntry& entry) {
        if (entry.isInTerminal && !entry.isShown) return true;
        return (entry.isInTerminal || !entry.isShown) && interpreters::isOne(entry.id);
    }
    [[nodiscard]] bool isUnit(const ApplicationEntry& entry) const {
        return entry.id.compare(m_scope.unitId, Qt::CaseInsensitive) == 0;
    }
    [[nodiscard]] const ApplicationEntry* oneOf(DesktopEntryIndex::Matches matches) const {
        matches.removeIf([](const auto* match) { return isInterpreter(*match); });
        for (const auto* match : matches)
            if (isUnit(*match)) return match;
        return matches.isEmpty() ? nullptr : matches.first();
    }
    /// A program of several entries, such as a suite, identifies none of them. Nor does an entry
    /// that menus hide or that has no window of its own, such as an interpreter.
    [[nodiscard]] const ApplicationEntry* soleOf(DesktopEntryIndex::Matches matches) const {
        matches.removeIf([](const auto* match) { return !match->isShown || match->isInTerminal; });
        for (const auto* match : matches)
            if (isUnit(*match)) return match;
        return matches.size() == 1 ? matches.first() : nullptr;
    }

    const ProcessScope& m_scope;
    const DesktopEntryIndex& m_index;
};

/// Whether the window's class comes from the interpreter or its toolkit, and is thus the same for
/// all its programs.
bool isOfInterpreter(const QString& mark, const ProcessScope& scope) {
    return interpreters::isOne(mark) ||
           (interpreters::isOne(scope.program) &&
            mark.compare(QLatin1String("tk"), Qt::CaseInsensitive) == 0);
}

/// One line of limited length, of whole characters: half of one can't be stored.
QString tidied(const QString& text) {
    QString tidy = text.simplified().left(kMaxText);
    if (!tidy.isEmpty() && tidy.back().isHighSurrogate()) tidy.chop(1);
    return tidy.trimmed();
}

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
    const auto own = [&](const QString& mark) {
        return isOfInterpreter(mark, scope) ? QString() : mark;
    };
    const QString name = firstOf(
        {own(hints.windowClass), own(hints.instance), own(hints.applicationId), scope.script});
    const QString id = firstOf({scope.sandboxId, name});
    return {knownapplications::identityOf(id), firstOf({name, id})};
}

} // namespace vantle
