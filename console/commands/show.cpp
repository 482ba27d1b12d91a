#include "console/commands/command.h"
#include "console/commands/locus_sheet.h"
#include "console/commands/output_format.h"
#include "console/commands/stored_loci.h"
#include "platform/panels/panel_writer.h"
#include "platform/reports/locus_listing.h"
#include "platform/store/store.h"

namespace Tamrivo
{

namespace
{

struct Options
{
    std::string Tag;
    OutputFormat Format = OutputFormat::Table;
};

void Show(Context& context, const Options& options)
{
    Store store(context.StoreLocation);
    const auto locus = RequireLocus(store, options.Tag);
    if (options.Format == OutputFormat::Json)
        context.Out << JsonText(LocusJson(*locus)) << '\n';
    else if (options.Format == OutputFormat::Tsv)
    {
        const std::shared_ptr<BusinessObject> one[] = {locus};
        WritePanelTable(context.Out, one);
    }
    else
        PrintLocusSheet(context.Out, *locus);
}

} // namespace

void AddShowCommand(CLI::App& program, Context& context)
{
    CLI::App& command =
        AddCommand(program, context, "show", "Show one locus with its alleles.",
                   "  tamrivo show D3S1358                 fields with units, then the alleles\n"
                   "  tamrivo show \"D3S1358 (Panel-17)\"    a tag with blanks stands in quotes\n"
                   "  tamrivo show D3S1358 --format tsv    the table that import reads\n");
    const auto options = std::make_shared<Options>();
    command.add_option("TAG", options->Tag, "The locus tag; case doesn't count")
        ->required()
        ->type_name("");
    AddFormatOption(command, options->Format,
                    {OutputFormat::Table, OutputFormat::Tsv, OutputFormat::Json});
    command.callback([&context, options] { Show(context, *options); });
}

} // namespace Tamrivo
