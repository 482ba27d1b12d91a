#include "console/commands/aligned_table.h"
#include "console/commands/command.h"
#include "console/commands/output_format.h"
#include "platform/panels/counts.h"
#include "platform/reports/locus_listing.h"
#include "platform/store/store.h"

namespace Tamrivo
{

namespace
{

void List(Context& context, OutputFormat format)
{
    Store store(context.StoreLocation);
    const Loci loci = LociOf(CurrentLoci(store.Manager(), "Name")->Members());
    if (format == OutputFormat::Json)
        context.Out << JsonText(LociJson(loci)) << '\n';
    else if (format == OutputFormat::Tsv)
        PrintTsv(context.Out, LociTable(loci, Audience::Programs));
    else if (loci.empty())
        context.Out << "The store has no loci yet. Bring some in with: tamrivo import FILE\n";
    else
    {
        PrintAligned(context.Out, LociTable(loci, Audience::People));
        context.Out << '\n' << CountOfLoci(loci.size()) << '\n';
    }
}

} // namespace

void AddListCommand(CLI::App& program, Context& context)
{
    CLI::App& command =
        AddCommand(program, context, "list", "List the current loci, ordered by tag.",
                   "  tamrivo list                           a table for people\n"
                   "  tamrivo list --format tsv | cut -f1    the tags alone\n"
                   "  tamrivo list --format json             for a program\n");
    const auto format = std::make_shared<OutputFormat>();
    AddFormatOption(command, *format, {OutputFormat::Table, OutputFormat::Tsv, OutputFormat::Json});
    command.callback([&context, format] { List(context, *format); });
}

} // namespace Tamrivo
