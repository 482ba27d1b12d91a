#include "console/commands/command.h"
#include "console/commands/stored_loci.h"
#include "platform/panels/counts.h"
#include "platform/parameters/parameter_store.h"
#include "platform/store/store.h"

namespace Tamrivo
{

namespace
{

void Delete(Context& context, const std::string& tag)
{
    Store store(context.StoreLocation);
    const auto locus = RequireLocus(store, tag);
    const auto users = ParameterStore(store).NamesUsing(locus->LocusTagID());
    const auto alleles = static_cast<std::size_t>(locus->Alleles().Count());
    store.DeleteLocus(tag);

    context.Out << "Deleted " << locus->LocusTag() << " with " << CountOfAlleles(alleles) << ".\n";
    for (const std::string& name : users)
        context.Out << "The analysis parameter " << name << " still refers to it.\n";
}

} // namespace

void AddDeleteCommand(CLI::App& program, Context& context)
{
    CLI::App& command =
        AddCommand(program, context, "delete", "Delete a locus with its alleles.",
                   "  tamrivo show D3S1358 --format tsv > D3S1358.tsv    keep a copy\n"
                   "  tamrivo delete D3S1358\n"
                   "  tamrivo import D3S1358.tsv                         and bring it back\n");
    const auto tag = std::make_shared<std::string>();
    command.add_option("TAG", *tag, "The locus tag; case doesn't count")->required()->type_name("");
    command.callback([&context, tag] { Delete(context, *tag); });
}

} // namespace Tamrivo
