#include "console/commands/command.h"
#include "console/commands/store_to_change.h"
#include "console/commands/stored_loci.h"
#include "host/library/changes.h"

namespace Tamrivo
{

namespace
{

void Rename(Context& context, const std::string& tag, const std::string& newTag)
{
    StoreToChange store(context);
    const std::string before = RequireLocus(store, tag)->LocusTag();
    RenameLocus(store, tag, newTag);
    context.Out << "Renamed " << before << " to " << newTag << ".\n";
}

} // namespace

void AddRenameCommand(CLI::App& program, Context& context)
{
    CLI::App& command = AddCommand(
        program, context, "rename",
        "Give a locus another tag. Analysis parameters that use it go on to do so.",
        "  tamrivo rename D3S1358 D3S1358-2026\n"
        "  tamrivo rename \"TH01 (Panel-17)\" TH01      a tag with blanks stands in quotes\n");
    const auto tag = std::make_shared<std::string>();
    const auto newTag = std::make_shared<std::string>();
    command.add_option("TAG", *tag, "The locus tag; case doesn't count")->required()->type_name("");
    command.add_option("NEW", *newTag, "The tag it gets, which no other locus may have")
        ->required()
        ->type_name("");
    AddReasonOption(command, context);
    command.callback([&context, tag, newTag] { Rename(context, *tag, *newTag); });
}

} // namespace Tamrivo
