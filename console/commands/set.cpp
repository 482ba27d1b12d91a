#include "console/commands/command.h"
#include "console/commands/store_to_change.h"
#include "console/commands/stored_loci.h"
#include "host/library/changes.h"
#include "host/loci/counts.h"
#include "host/loci/dyes.h"

#include <vector>

namespace Tamrivo
{

namespace
{

struct Changes
{
    std::vector<std::string> Tags;
    std::string Color;
    std::string Project;
};

std::int32_t RequireDye(Store& store, const std::string& color)
{
    const Dyes dyes = store.Dyes();
    if (const auto dye = dyes.OfColor(color))
        return *dye;
    std::string colors;
    for (const Dye& dye : dyes.All())
        colors.append(colors.empty() ? "" : ", ").append(dye.Color);
    throw Failure(ErrorNumber::InvalidArgument, "Program",
                  "Nothing was changed: the store has no dye \"" + color + "\". There are " +
                      colors + "; tamrivo dyes set makes others");
}

void Set(Context& context, const Changes& changes)
{
    StoreToChange store(context);
    for (const std::string& tag : changes.Tags)
        RequireLocus(store, tag);
    auto transaction = store.Begin();
    if (!changes.Color.empty())
        SetDye(store, changes.Tags, RequireDye(store, changes.Color));
    if (!changes.Project.empty())
        SetProject(store, changes.Tags, changes.Project);
    transaction.Commit();
    context.Out << "Changed " << CountOfLoci(changes.Tags.size()) << ".\n";
}

} // namespace

void AddSetCommand(CLI::App& program, Context& context)
{
    CLI::App& command =
        AddCommand(program, context, "set", "Give loci another dye or project, all or none.",
                   "  tamrivo set D3S1358 TH01 --dye green\n"
                   "  tamrivo set FGA --project \"Cold cases\"      made if there is none\n");
    const auto changes = std::make_shared<Changes>();
    command.add_option("TAG", changes->Tags, "The locus tags; case doesn't count")
        ->required()
        ->type_name("");
    command.add_option("--dye", changes->Color, "The colour of the dye")->type_name("COLOUR");
    command.add_option("--project", changes->Project, "The name of the project")->type_name("NAME");
    AddReasonOption(command, context);
    command.callback([&context, changes] {
        if (changes->Color.empty() && changes->Project.empty())
            throw CLI::RequiredError("--dye or --project");
        Set(context, *changes);
    });
}

} // namespace Tamrivo
