#include "console/commands/command.h"
#include "console/commands/store_to_change.h"
#include "console/commands/stored_loci.h"
#include "host/library/changes.h"

namespace Tamrivo
{

namespace
{

void Duplicate(Context& context, const std::string& tag, const std::string& newTag)
{
    StoreToChange store(context);
    const std::string original = RequireLocus(store, tag)->LocusTag();
    DuplicateLocus(store, tag, newTag);
    context.Out << "Stored a copy of " << original << " as " << newTag << ".\n";
}

} // namespace

void AddDuplicateCommand(CLI::App& program, Context& context)
{
    CLI::App& command =
        AddCommand(program, context, "duplicate",
                   "Store a copy of a locus with all its alleles under another tag.",
                   "  tamrivo duplicate D3S1358 D3S1358-trial\n");
    const auto tag = std::make_shared<std::string>();
    const auto newTag = std::make_shared<std::string>();
    command.add_option("TAG", *tag, "The locus tag; case doesn't count")->required()->type_name("");
    command.add_option("NEW", *newTag, "The tag of the copy, which no other locus may have")
        ->required()
        ->type_name("");
    AddReasonOption(command, context);
    command.callback([&context, tag, newTag] { Duplicate(context, *tag, *newTag); });
}

} // namespace Tamrivo
