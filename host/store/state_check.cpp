#include "host/store/state_check.h"

#include "host/database/database.h"
#include "host/store/content_difference.h"
#include "host/store/dye_table.h"
#include "host/store/history.h"
#include "host/store/history_content.h"
#include "host/store/history_writer.h"
#include "host/store/locus_reader.h"
#include "host/store/parameter_store.h"
#include "host/store/projects.h"
#include "host/store/settings.h"

#include <optional>
#include <string_view>

namespace Tamrivo
{

namespace
{

/// An object as the store has it.
struct PresentState
{
    std::int32_t Number = 0;
    std::int32_t Revision = 0; ///< 0: the object doesn't keep one.
    std::string Name;
    std::string Content;
};

/// Gives the objects of a kind in the order of their numbers; none at the end.
using NextState = std::function<std::optional<PresentState>()>;

NextState OneAfterTheOther(std::vector<PresentState> states)
{
    return [states = std::move(states), at = std::size_t{0}]() mutable {
        return at < states.size() ? std::optional(std::move(states[at++])) : std::nullopt;
    };
}

NextState Loci(Database& database)
{
    return [reader = LocusReader(database, "1 = 1")]() mutable -> std::optional<PresentState> {
        const auto locus = reader.Next();
        if (!locus)
            return std::nullopt;
        return PresentState{locus->Identity.LocusID, locus->Identity.Revision, locus->State.Tag,
                            ContentOf(locus->State)};
    };
}

NextState Parameters(Database& database)
{
    std::vector<PresentState> states;
    for (const auto& [number, revision, state] : ReadParameters(database, "1 = 1"))
        states.push_back({number, revision, state.Name, ContentOf(state)});
    return OneAfterTheOther(std::move(states));
}

NextState AllProjects(Database& database)
{
    std::vector<PresentState> states;
    for (const auto& project : ReadProjects(database))
        states.push_back(
            {project->ProjectID(), 0, project->Name(), ContentOfValue("Name", project->Name())});
    return OneAfterTheOther(std::move(states));
}

NextState TheDyes(Database& database)
{
    return OneAfterTheOther({{0, 0, "Dyes", ContentOf(ReadDyes(database))}});
}

/// There is none before a setting is first changed.
NextState TheSettings(Database& database)
{
    if (LastRevision(database, HistoryKind::Setting, 0) == 0 && !IsReasonRequired(database))
        return OneAfterTheOther({});
    return OneAfterTheOther({{0, 0, "reason", ReasonRuleContent(IsReasonRequired(database))}});
}

struct KindOfState
{
    std::string_view Kind;
    NextState (*States)(Database&);
};

constexpr KindOfState Kinds[] = {
    {HistoryKind::Locus, Loci},          {HistoryKind::Parameter, Parameters},
    {HistoryKind::Project, AllProjects}, {HistoryKind::Dyes, TheDyes},
    {HistoryKind::Setting, TheSettings},
};

/// What is wrong with an object, of which the store or the history may have none; empty: nothing.
std::string FaultOf(const std::optional<PresentState>& state,
                    const std::optional<HistoryRecord>& last)
{
    const bool isInHistory = last && last->Operation != HistoryOperation::Deleted;
    if (!state)
        return isInHistory ? "is in the history and isn't in the store" : "";
    if (!isInHistory)
        return last ? "was deleted by the history and is in the store" : "has no history";
    if (state->Revision > 0 && state->Revision != last->Revision)
        return "has revision " + std::to_string(state->Revision) + ", and its last record " +
               std::to_string(last->Revision);
    if (state->Content != last->Content)
    {
        // An earlier version of the program may have written the same in another form.
        const auto differences = ContentDifferences(last->Content, state->Content);
        if (!differences.empty())
            return "isn't as its last record says: " + differences.front().What;
    }
    return {};
}

void CompareKind(Database& database, const KindOfState& kind,
                 const std::function<void(std::string)>& handler)
{
    const NextState next = kind.States(database);
    std::optional<PresentState> state = next();
    const auto tell = [&](const std::string& name, const std::string& fault) {
        if (!fault.empty())
            handler(std::string(kind.Kind) + " \"" + name + "\" " + fault);
    };
    History(database).ForEachLast(kind.Kind, [&](const HistoryRecord& last) {
        for (; state && state->Number < last.ObjectNumber; state = next())
            tell(state->Name, FaultOf(state, std::nullopt));
        const bool isThere = state && state->Number == last.ObjectNumber;
        tell(last.Name, FaultOf(isThere ? state : std::nullopt, last));
        if (isThere)
            state = next();
    });
    for (; state; state = next())
        tell(state->Name, FaultOf(state, std::nullopt));
}

} // namespace

void CompareStatesWithHistory(Database& database, const std::function<void(std::string)>& handler)
{
    for (const KindOfState& kind : Kinds)
        CompareKind(database, kind, handler);
}

} // namespace Tamrivo
