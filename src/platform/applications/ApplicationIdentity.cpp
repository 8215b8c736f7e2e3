#include "platform/applications/ApplicationIdentity.h"

#include "platform/applications/Interpreters.h"
#include "platform/applications/KnownApplications.h"

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
    /// A suite has an entry for each of its parts, which are in one sandbox and tell themselves
    /// apart by the window class. Ids of Flatpak entries are "{app}.{part}", of Snap
    /// "{snap}_{part}".
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
    /// An entry of an interpreter, as distributions have one for each version, stands for a session
    /// with it in a terminal. Programs that it runs are not it.
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
    /// A program that several entries start, as a suite, tells none of them. Nor does one whose
    /// entry menus don't show or that has no window of its own, as an interpreter.
    [[nodiscard]] const ApplicationEntry* soleOf(DesktopEntryIndex::Matches matches) const {
        matches.removeIf([](const auto* match) { return !match->isShown || match->isInTerminal; });
        for (const auto* match : matches)
            if (isUnit(*match)) return match;
        return matches.size() == 1 ? matches.first() : nullptr;
    }

    const ProcessScope& m_scope;
    const DesktopEntryIndex& m_index;
};

/// Whether a window has its class from what runs it, so that all such programs have the same: the
/// interpreter's own name, or that of the toolkit that comes with it.
bool isOfInterpreter(const QString& mark, const ProcessScope& scope) {
    return interpreters::isOne(mark) ||
           (interpreters::isOne(scope.program) &&
            mark.compare(QLatin1String("tk"), Qt::CaseInsensitive) == 0);
}

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
    const auto own = [&](const QString& mark) {
        return isOfInterpreter(mark, scope) ? QString() : mark;
    };
    const QString name = firstOf(
        {own(hints.windowClass), own(hints.instance), own(hints.applicationId), scope.script});
    const QString id = firstOf({scope.sandboxId, name});
    return {knownapplications::identityOf(id), firstOf({name, id})};
}

} // namespace vantle
