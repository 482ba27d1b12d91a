#include "console/commands/command.h"
#include "host/database/address.h"
#include "host/store/store.h"
#include "host/store/store_copy.h"

#include <filesystem>
#include <memory>

namespace Tamrivo
{

namespace
{

struct CopyOptions
{
    std::string From;
    std::string To;
    bool Verify = false;
};

/// A name mistaken would else make a new store.
void RequireThere(const std::string& location)
{
    if (!IsPostgresqlAddress(location) && !std::filesystem::exists(SqlitePath(location)))
        throw Failure(StoreError::NotFound, "Copy",
                      "There is no store \"" + location + "\". Nothing was done");
}

void Copy(Context& context, const CopyOptions& options)
{
    RequireThere(options.From);
    if (options.Verify)
        RequireThere(options.To);
    Store from(options.From);
    Store to(options.To);
    if (options.Verify)
    {
        const std::string table = FirstDifference(from, to);
        context.Status = table.empty() ? ExitStatus::Done : ExitStatus::Failed;
        if (table.empty())
            context.Out << "The two stores hold the same.\n";
        else
            context.Out << "The two stores differ, first in the table " << table << ".\n";
        return;
    }
    to.RequireWritable();
    CopyStore(from, to);
    context.Out << "Copied " << from.Name() << " to " << to.Name() << ".\n";
}

} // namespace

void AddCopyCommand(CLI::App& program, Context& context)
{
    CLI::App& command = AddCommand(
        program, context, "copy", "Carry a whole store to another place, or compare two.",
        "  tamrivo copy --from loci.sqlite --to postgresql://loci_keeper@dbserver/loci\n"
        "  tamrivo copy --from loci.sqlite --to postgresql://loci_keeper@dbserver/loci --verify\n"
        "The store to copy to has to be empty. With --verify nothing is written; the status is 1\n"
        "when the stores differ.\n");
    const auto options = std::make_shared<CopyOptions>();
    command.add_option("--from", options->From, "The store to copy")
        ->required()
        ->type_name("LOCATION");
    command.add_option("--to", options->To, "The empty one")->required()->type_name("LOCATION");
    command.add_flag("--verify", options->Verify, "Compare the two stores whole");
    command.callback([&context, options] { Copy(context, *options); });
}

} // namespace Tamrivo
