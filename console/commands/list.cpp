#include "console/commands/aligned_table.h"
#include "console/commands/command.h"
#include "console/commands/output_format.h"
#include "host/library/library.h"
#include "host/library/search.h"
#include "host/loci/counts.h"
#include "host/reports/locus_listing.h"
#include "host/store/store.h"

#include <unordered_set>

namespace Tamrivo
{

namespace
{

/// Keeps the loci that the search finds. Raises `ErrorNumber::InvalidArgument` for a faulty one.
void Keep(Loci& loci, Store& store, const std::string& search)
{
    Library library(store);
    const SearchResult result = Search(library, search);
    if (!result.Errors.empty())
        throw Failure(ErrorNumber::InvalidArgument, "Program", "--where " + result.Errors.front());
    std::unordered_set<std::int32_t> found;
    for (const std::uint32_t position : result.Loci)
        found.insert(library.Loci()[position].LocusID);
    std::erase_if(loci, [&](const auto& locus) { return !found.contains(locus->LocusID()); });
}

void List(Context& context, OutputFormat format, const std::string& search)
{
    Store store(context.StoreLocation);
    Loci loci = LociOf(CurrentLoci(store.Manager(), "Name")->Members());
    const bool isEmpty = loci.empty();
    if (!search.empty())
        Keep(loci, store, search);
    if (format == OutputFormat::Json)
        context.Out << JsonText(LociJson(loci, store.Dyes())) << '\n';
    else if (format == OutputFormat::Tsv)
        PrintTsv(context.Out, LociTable(loci, store.Dyes(), Audience::Programs));
    else if (isEmpty)
        context.Out << "The store has no loci yet. Bring some in with: tamrivo import FILE\n";
    else
    {
        PrintAligned(context.Out, LociTable(loci, store.Dyes(), Audience::People));
        context.Out << '\n' << CountOfLoci(loci.size()) << '\n';
    }
}

std::string Terms()
{
    std::string terms;
    for (const std::string& name : SearchTermNames())
        terms.append(" ").append(name);
    return terms;
}

} // namespace

void AddListCommand(CLI::App& program, Context& context)
{
    CLI::App& command = AddCommand(
        program, context, "list", "List the current loci, ordered by tag.",
        "  tamrivo list                           a table for people\n"
        "  tamrivo list --format tsv | cut -f1    the tags alone\n"
        "  tamrivo list --format json             for a program\n"
        "  tamrivo list --where \"dye:blue range:100-200\"\n"
        "Words are looked for in tag, name, panel, project and accession; terms are" +
            Terms() + "\nAll must be met; - before one negates it, quotes hold blanks.\n");
    const auto search = std::make_shared<std::string>();
    command.add_option("--where", *search, "Only the loci that this search finds")
        ->type_name("SEARCH");
    const auto format = std::make_shared<OutputFormat>();
    AddFormatOption(command, *format, {OutputFormat::Table, OutputFormat::Tsv, OutputFormat::Json});
    command.callback([&context, format, search] { List(context, *format, *search); });
}

} // namespace Tamrivo
