#include "console/commands/aligned_table.h"
#include "console/commands/command.h"
#include "console/commands/output_format.h"
#include "console/commands/stored_loci.h"
#include "console/commands/text_width.h"
#include "host/loci/counts.h"
#include "host/panels/table/panel_writer.h"
#include "host/reports/locus_listing.h"
#include "host/reports/locus_sheet.h"
#include "host/store/store.h"

namespace Tamrivo
{

namespace
{

struct ShowOptions
{
    std::string Tag;
    std::string At;
    OutputFormat Format = OutputFormat::Table;
};

/// For people: fields with units, then the alleles.
void PrintSheet(std::ostream& out, Locus& locus, const Dyes& dyes)
{
    constexpr std::size_t labelWidth = 22;
    for (const SheetEntry& entry : LocusSheet(locus, dyes))
    {
        const std::string text = PrintableText(entry.Text);
        if (!text.empty())
            out << entry.Label << std::string(labelWidth - TextWidth(entry.Label), ' ') << text
                << '\n';
    }
    const Table alleles = AlleleTable(locus);
    out << '\n' << CountOfAlleles(alleles.Rows.size()) << '\n';
    if (!alleles.Rows.empty())
    {
        out << '\n';
        PrintAligned(out, alleles);
    }
}

void Show(Context& context, const ShowOptions& options)
{
    Store store(context.StoreLocation);
    const auto locus = options.At.empty() ? RequireLocus(store, options.Tag)
                                          : store.LocusAt(options.Tag, options.At);
    if (options.Format == OutputFormat::Json)
        context.Out << JsonText(LocusJson(*locus)) << '\n';
    else if (options.Format == OutputFormat::Tsv)
    {
        const std::shared_ptr<BusinessObject> one[] = {locus};
        WritePanelTable(context.Out, one, store.Dyes());
    }
    else
        PrintSheet(context.Out, *locus, store.Dyes());
}

} // namespace

void AddShowCommand(CLI::App& program, Context& context)
{
    CLI::App& command =
        AddCommand(program, context, "show", "Show one locus with its alleles.",
                   "  tamrivo show D3S1358                 fields with units, then the alleles\n"
                   "  tamrivo show \"D3S1358 (Panel-17)\"    a tag with blanks stands in quotes\n"
                   "  tamrivo show D3S1358 --format tsv    the table that import reads\n"
                   "  tamrivo show D3S1358 --at 2026-11-23 as it was at the end of that day, UTC\n"
                   "  tamrivo show D3S1358 --at 4          its revision 4\n");
    const auto options = std::make_shared<ShowOptions>();
    command.add_option("TAG", options->Tag, "The locus tag; case doesn't count")
        ->required()
        ->type_name("");
    AddAtOption(command, options->At, "Show it as it was then");
    AddFormatOption(command, options->Format,
                    {OutputFormat::Table, OutputFormat::Tsv, OutputFormat::Json});
    command.callback([&context, options] { Show(context, *options); });
}

} // namespace Tamrivo
