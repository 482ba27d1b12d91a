#include "console/commands/command.h"
#include "host/store/store.h"

#include <memory>

namespace Tamrivo
{

namespace
{

void SetReasonRule(Context& context, const std::string& rule)
{
    Store store(context.StoreLocation);
    if (!rule.empty())
    {
        store.RequireWritable();
        store.SetReason(context.Reason);
        store.SetReasonRequired(rule == "required");
    }
    context.Out << "reason: " << (store.IsReasonRequired() ? "required" : "optional") << '\n';
}

} // namespace

void AddSettingsCommand(CLI::App& program, Context& context)
{
    CLI::App& command =
        AddCommand(program, context, "settings", "Show or change how this store is kept.",
                   "  tamrivo settings                    show\n"
                   "  tamrivo settings reason required    each change has to have a reason\n"
                   "  tamrivo settings reason optional    it may have one\n");
    const auto rule = std::make_shared<std::string>();
    CLI::App& reason = *command.add_subcommand("reason", "Whether each change needs a reason");
    reason.add_option("RULE", *rule, "required or optional")
        ->required()
        ->type_name("")
        ->check(CLI::IsMember({"required", "optional"}));
    AddReasonOption(command, context);
    reason.fallthrough(); // --store may stand at the end.
    AddReasonOption(reason, context);
    command.callback([&context, rule] { SetReasonRule(context, *rule); });
}

} // namespace Tamrivo
