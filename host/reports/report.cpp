#include "host/reports/report.h"

#include "core/text.h"
#include "host/framework/host_application.h"
#include "host/loci/counts.h"

#include <unordered_map>

namespace Tamrivo
{

namespace
{

std::string Folded(const std::string& key)
{
    return FoldCase(TrimRight(key));
}

} // namespace

std::string Report::Heading() const
{
    return Subject + ": " + CountOfLoci(Items.size());
}

Report ContextsOf(HostApplication& host, const ContextKind& kind)
{
    Report report{kind.Name, {}, {}, host.Store().Dyes()};
    const ReportContexts contexts = host.Contexts(kind.Identifier);
    for (const auto& [key, locus] : contexts.Entries())
    {
        report.Keys.push_back(key);
        report.Items.push_back(locus);
    }
    return report;
}

Report OnlyKeys(const Report& report, const std::vector<std::string>& keys)
{
    std::unordered_map<std::string, std::size_t> places;
    for (std::size_t at = 0; at < report.Keys.size(); ++at)
        places.emplace(Folded(report.Keys[at]), at);
    Report chosen{report.Subject, {}, {}, report.OfStore};
    for (const std::string& key : keys)
    {
        const auto place = places.find(Folded(key));
        if (place == places.end())
            continue;
        chosen.Keys.push_back(report.Keys[place->second]);
        chosen.Items.push_back(report.Items[place->second]);
    }
    return chosen;
}

Table TableOf(const Report& report, Audience audience)
{
    Table table = LociTable(report.Items, report.OfStore, audience);
    if (audience == Audience::Programs)
        table.Columns.front().Title = "Context";
    for (std::size_t row = 0; row < table.Rows.size(); ++row)
        table.Rows[row].front() = report.Keys[row];
    return table;
}

} // namespace Tamrivo
