#include "console/commands/command.h"
#include "console/commands/store_to_change.h"

#include <memory>

namespace Tamrivo
{

namespace
{

struct RestoreOptions
{
    std::string Tag;
    std::string At;
    std::string NewTag;
};

void Restore(Context& context, const RestoreOptions& options)
{
    StoreToChange store(context);
    const std::string tag = store.RestoreLocus(options.Tag, options.At, options.NewTag);
    context.Out << "Restored " << tag << " as it was at " << options.At << ".\n";
}

} // namespace

void AddRestoreCommand(CLI::App& program, Context& context)
{
    CLI::App& command = AddCommand(
        program, context, "restore",
        "Bring an earlier state of a locus back, also of a deleted one.",
        "  tamrivo history D3S1358                        find the revision\n"
        "  tamrivo restore D3S1358 --at 3                 store it as a new change\n"
        "  tamrivo restore D3S1358 --at 2026-11-23T08:15  by the time\n"
        "  tamrivo restore D3S1358 --at 3 --as D3S1358b   when another locus has the tag now\n"
        "Analysis parameters that use the locus find it again.\n");
    const auto options = std::make_shared<RestoreOptions>();
    command.add_option("TAG", options->Tag, "The locus tag, or the one it had")
        ->required()
        ->type_name("");
    AddAtOption(command, options->At, "The state to restore").required();
    command.add_option("--as", options->NewTag, "Give it another tag")->type_name("TAG");
    AddReasonOption(command, context);
    command.callback([&context, options] { Restore(context, *options); });
}

} // namespace Tamrivo
