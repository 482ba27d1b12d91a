#include "host/store/first_records.h"

#include "host/database/database.h"
#include "host/store/dye_table.h"
#include "host/store/history_content.h"
#include "host/store/history_writer.h"
#include "host/store/locus_reader.h"
#include "host/store/parameter_store.h"
#include "host/store/projects.h"

namespace Tamrivo
{

void RecordWhatIsFound(Database& database)
{
    constexpr const char* consequence = "The store gets no history";
    HistoryWriter history(database);
    const auto record = [&](std::string_view kind, std::int32_t number, const std::string& name,
                            std::string content, std::int32_t revision) {
        history.Record({.Kind = kind,
                        .ObjectNumber = number,
                        .Operation = HistoryOperation::Found,
                        .Name = name,
                        .Content = std::move(content),
                        .Revision = revision});
    };
    const auto without = [](const std::string& kind, const std::string& number) {
        return "NOT EXISTS (SELECT 1 FROM History WHERE Kind = '" + kind +
               "' AND ObjectNumber = " + number + ")";
    };
    database.Run(consequence, [&](soci::session&) {
        LocusReader loci(database, without("Locus", "LocusID"));
        while (const auto locus = loci.Next())
            record(HistoryKind::Locus, locus->Identity.LocusID, locus->State.Tag,
                   ContentOf(locus->State), locus->Identity.Revision);
        for (const auto& [number, revision, state] :
             ReadParameters(database, without("AnalysisParameter", "ParameterID")))
            record(HistoryKind::Parameter, number, state.Name, ContentOf(state), revision);
        if (LastRevision(database, HistoryKind::Dyes, 0) == 0)
            record(HistoryKind::Dyes, 0, "Dyes", ContentOf(ReadDyes(database)), 1);
        for (const auto& project : ReadProjects(database))
        {
            if (LastRevision(database, HistoryKind::Project, project->ProjectID()) == 0)
                record(HistoryKind::Project, project->ProjectID(), project->Name(),
                       ContentOfValue("Name", project->Name()), 1);
        }
    });
}

} // namespace Tamrivo
