#include "console/commands/command.h"
#include "host/store/store.h"
#include "host/store/store_backup.h"

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

void BackUp(Context& context, const BackupOptions& options)
{
    Store store(context.StoreLocation);
    BackUpStore(store, options.File, options.Force);
    context.Out << "Backed up " << store.Name() << " to " << options.File << ".\n";
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

} // namespace Tamrivo
