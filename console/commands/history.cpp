#include "host/store/history.h"

#include "console/commands/aligned_table.h"
#include "console/commands/command.h"
#include "console/commands/difference_lines.h"
#include "console/commands/output_format.h"
#include "host/database/database.h"
#include "host/reports/table.h"
#include "host/store/content_difference.h"
#include "host/store/store.h"

namespace Tamrivo
{

namespace
{

struct HistoryOptions
{
    std::string Tag;
    std::string Parameter;
    std::string Since;
    std::string By;
    OutputFormat Format = OutputFormat::Table;
    bool Details = false;
    bool Verify = false;
};

HistoryFilter FilterOf(const HistoryOptions& options)
{
    HistoryFilter filter;
    filter.Name = options.Tag + options.Parameter; // Only one of them is given.
    if (!options.Tag.empty())
        filter.Kind = HistoryKind::Locus;
    else if (!options.Parameter.empty())
        filter.Kind = HistoryKind::Parameter;
    if (!options.Since.empty())
        filter.Since = MomentOf(options.Since, OfDay::Beginning);
    filter.By = options.By;
    return filter;
}

void PrintForPrograms(Context& context, History& history, const HistoryFilter& filter)
{
    PrintTsv(context.Out, {{{"Number"},
                            {"When"},
                            {"Who"},
                            {"ServerUser"},
                            {"Program"},
                            {"Machine"},
                            {"Operation"},
                            {"Kind"},
                            {"Name"},
                            {"Revision"},
                            {"Reason"}},
                           {}});
    history.ForEach(filter, [&](const HistoryRecord& record) {
        PrintTsvRow(context.Out,
                    {std::to_string(record.Number), IsoTime(record.When()), record.Who,
                     record.ServerUser, record.Program, record.Machine, record.Operation,
                     record.Kind, record.Name, std::to_string(record.Revision), record.Reason});
    });
}

/// The change in one line for people.
std::string LineOf(const HistoryRecord& record)
{
    const std::string who =
        record.Who + (record.ServerUser.empty() || record.ServerUser == record.Who
                          ? ""
                          : " as " + record.ServerUser);
    return IsoTime(record.When()).substr(0, 19) + "Z  " + who + "  " + record.Operation + " " +
           record.Kind + " " + record.Name + ", revision " + std::to_string(record.Revision) +
           (record.Reason.empty() ? "" : ": " + record.Reason);
}

void PrintHistory(Context& context, History& history, const HistoryOptions& options)
{
    long long count = 0;
    history.ForEach(FilterOf(options), [&](const HistoryRecord& record) {
        ++count;
        context.Out << record.Number << "  " << OneLine(LineOf(record)) << '\n';
        if (!options.Details)
            return;
        context.Out << "    by " << record.Program << " on " << record.Machine << '\n';
        const auto before = history.Before(record);
        PrintDifferences(context.Out,
                         ContentDifferences(before ? before->Content : "", record.Content), "    ");
    });
    if (count == 0)
        context.Out << "The history has no such change.\n";
}

void Verify(Context& context, History& history)
{
    const HistoryFinding finding = history.Verify();
    if (finding.Number > 0)
    {
        context.Out << "The history was tampered with. The first record concerned is number "
                    << finding.Number << ": " << finding.What << ".\n";
        context.Status = ExitStatus::Failed;
        return;
    }
    context.Out << "The history is as it was written: " << finding.Records << " records, sealed "
                << finding.Seals << (finding.Seals == 1 ? " time.\n" : " times.\n");
    if (!finding.LastSeal.empty())
        context.Out << "The last seal is " << finding.LastSeal << ".\n";
}

void ShowHistory(Context& context, const HistoryOptions& options)
{
    Store store(context.StoreLocation);
    History history(store.SharedDatabase());
    if (options.Verify)
        Verify(context, history);
    else if (options.Format == OutputFormat::Tsv)
        PrintForPrograms(context, history, FilterOf(options));
    else
        PrintHistory(context, history, options);
}

} // namespace

void AddHistoryCommand(CLI::App& program, Context& context)
{
    CLI::App& command = AddCommand(
        program, context, "history", "List the changes of the store: who, when, what and why.",
        "  tamrivo history                                 all changes, a line each, oldest first\n"
        "  tamrivo history D3S1358 --details               fields and alleles, old and new\n"
        "  tamrivo history --parameter \"Run 1\"             of an analysis parameter\n"
        "  tamrivo history --since 2026-11-01 --by anna    some of them\n"
        "  tamrivo history --format tsv                    for a program; times are UTC\n"
        "  tamrivo history --verify                        has anyone tampered with it?\n");
    const auto options = std::make_shared<HistoryOptions>();
    auto* tag =
        command.add_option("TAG", options->Tag, "Of this locus, also a deleted one")->type_name("");
    command.add_option("--parameter", options->Parameter, "Of this analysis parameter")
        ->type_name("NAME")
        ->excludes(tag);
    command.add_option("--since", options->Since, "From this date, or date and time, on; UTC")
        ->type_name("WHEN");
    command.add_option("--by", options->By, "Of this login name or server's user")
        ->type_name("NAME");
    command.add_flag("--details", options->Details, "Show what has changed, old and new");
    command.add_flag("--verify", options->Verify,
                     "Recompute the chains and seals of the whole history; status 1 and the first "
                     "record concerned when they don't fit");
    AddFormatOption(command, options->Format, {OutputFormat::Table, OutputFormat::Tsv});
    command.callback([&context, options] { ShowHistory(context, *options); });
}

} // namespace Tamrivo
