#include "console/commands/command.h"
#include "platform/panels/counts.h"
#include "platform/panels/panel_file.h"
#include "platform/store/store.h"

namespace Tamrivo
{

namespace
{

void Export(Context& context, const std::string& file)
{
    Store store(context.StoreLocation);
    const auto loci = CurrentLoci(store.Manager(), "");
    if (file.empty())
    {
        WritePanelTable(context.Out, loci->Members());
        return;
    }
    WritePanelFile(file, loci->Members());
    context.Out << "Exported " << CountOfLoci(loci->Members().size()) << " to " << file << ".\n";
}

} // namespace

void AddExportCommand(CLI::App& program, Context& context)
{
    CLI::App& command = AddCommand(
        program, context, "export", "Write the current loci as a panel table.",
        "  tamrivo export loci.tsv                into a file; import reads it back unchanged\n"
        "  tamrivo export | column -ts $'\\t'      to standard output\n"
        "  tamrivo export copy.tsv && tamrivo import copy.tsv --store other.sqlite\n"
        "                                         from one store to another\n");
    const auto file = std::make_shared<std::string>();
    command.add_option("FILE", *file, "The file; without one, standard output")->type_name("");
    command.callback([&context, file] { Export(context, *file); });
}

} // namespace Tamrivo
