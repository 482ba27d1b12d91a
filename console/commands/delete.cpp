#include "console/commands/command.h"
#include "console/commands/store_to_change.h"
#include "console/commands/stored_loci.h"
#include "host/library/changes.h"
#include "host/loci/counts.h"
#include "host/store/parameter_store.h"

#include <sstream>
#include <vector>

namespace Tamrivo
{

namespace
{

void Delete(Context& context, const std::vector<std::string>& tags)
{
    StoreToChange store(context);
    std::ostringstream done;
    for (const std::string& tag : tags)
    {
        const auto locus = RequireLocus(store, tag);
        const auto alleles = static_cast<std::size_t>(locus->Alleles().Count());
        done << "Deleted " << locus->LocusTag() << " with " << CountOfAlleles(alleles) << ".\n";
        for (const std::string& name : ParameterStore(store).NamesUsing(locus->LocusTagID()))
            done << "The analysis parameter " << name << " still refers to it.\n";
    }
    DeleteLoci(store, tags);
    context.Out << done.str();
}

} // namespace

void AddDeleteCommand(CLI::App& program, Context& context)
{
    CLI::App& command =
        AddCommand(program, context, "delete", "Delete loci with their alleles, all or none.",
                   "  tamrivo delete D3S1358 --reason \"typing error\"\n"
                   "  tamrivo history D3S1358                  what is kept of it\n"
                   "  tamrivo restore D3S1358 --at 3           brings revision 3 back\n");
    const auto tags = std::make_shared<std::vector<std::string>>();
    command.add_option("TAG", *tags, "The locus tags; case doesn't count")
        ->required()
        ->type_name("");
    AddReasonOption(command, context);
    command.callback([&context, tags] { Delete(context, *tags); });
}

} // namespace Tamrivo
