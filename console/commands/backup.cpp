#include "console/commands/command.h"
#include "host/store/store.h"
#include "host/store/store_copy.h"

#include <memory>

namespace Tamrivo
{

namespace
{

struct BackupOptions
{
    std::string File;
    bool Force = false;
};

struct CopyOptions
{
    std::string From;
    std::string To;
    bool Verify = false;
};

void BackUp(Context& context, const BackupOptions& options)
{
    Store store(context.StoreLocation);
    BackUpStore(store, options.File, options.Force);
    context.Out << "Backed up " << store.Name() << " to " << options.File << ".\n";
}

void Copy(Context& context, const CopyOptions& options)
{
    if (options.From == options.To)
        throw Failure(ErrorNumber::InvalidArgument, "Copy",
                      "Nothing was copied: a store can't be copied onto itself");
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
    CopyStore(from, to);
    context.Out << "Copied " << from.Name() << " to " << to.Name() << ".\n";
}

} // namespace

void AddBackupCommand(CLI::App& program, Context& context)
{
    CLI::App& command =
        AddCommand(program, context, "backup", "Write the store, while in use, into one file.",
                   "  tamrivo backup loci-2026-11-23.sqlite     history included\n"
                   "  tamrivo backup loci.sqlite --force        over an existing file\n"
                   "  tamrivo list --store loci.sqlite          a backup is a store\n");
    const auto options = std::make_shared<BackupOptions>();
    command.add_option("FILE", options->File, "The SQLite file to write")
        ->required()
        ->type_name("");
    command.add_flag("--force", options->Force, "Overwrite the file");
    command.callback([&context, options] { BackUp(context, *options); });
}

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
