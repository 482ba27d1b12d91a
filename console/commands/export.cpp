#include "console/commands/command.h"
#include "console/commands/progress_line.h"
#include "platform/panels/counts.h"
#include "platform/panels/panel_file.h"
#include "platform/store/store.h"

#include <unistd.h>

namespace Tamrivo
{

namespace
{

void Export(Context& context, const std::string& file)
{
    Store store(context.StoreLocation);
    ProgressLine progress(context.Err);
    const auto loci = CurrentLoci(store.Manager(), "");
    if (file.empty())
    {
        // On a terminal the table itself shows how far it is.
        WritePanelTable(context.Out, loci->Members(),
                        isatty(STDOUT_FILENO) == 1 ? LociProgress()
                                                   : progress.Counting("Exporting"));
        return;
    }
    WritePanelFile(file, loci->Members(), progress.Counting("Exporting"));
    progress.Clear();
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
