#include "host/loci/dyes.h"

#include "console/commands/aligned_table.h"
#include "console/commands/command.h"
#include "console/commands/output_format.h"
#include "console/commands/store_to_change.h"
#include "core/error.h"

#include <memory>

namespace Tamrivo
{

namespace
{

struct SetOptions
{
    std::vector<std::string> Dyes;
    bool Recolor = false;
};

Table DyesTable(Store& store)
{
    Table table{{{"Entry"}, {"Name"}, {"Colour"}, {"Loci", Table::Number}}, {}};
    const Dyes dyes = store.Dyes();
    const std::vector<std::size_t> loci = store.LociByDye();
    for (std::int32_t dye = 0; dye < dyes.Count(); ++dye)
    {
        const auto at = static_cast<std::size_t>(dye);
        table.Rows.push_back(
            {DyeEntry(dye), dyes.All()[at].Name, dyes.ColorOf(dye), std::to_string(loci[at])});
    }
    return table;
}

void ListDyes(Context& context, OutputFormat format)
{
    Store store(context.StoreLocation);
    if (format == OutputFormat::Tsv)
        PrintTsv(context.Out, DyesTable(store));
    else
        PrintAligned(context.Out, DyesTable(store));
}

/// "purple" or "purple=Dye5".
Dye ParseDye(const std::string& text)
{
    const std::size_t sign = text.find('=');
    return {text.substr(0, sign), sign == std::string::npos ? "" : text.substr(sign + 1)};
}

void SetDyes(Context& context, const SetOptions& options)
{
    std::vector<Dye> dyes;
    for (const std::string& text : options.Dyes)
        dyes.push_back(ParseDye(text));
    const Dyes checked(std::move(dyes));
    StoreToChange store(context);
    store.SetDyes(checked, options.Recolor);
    context.Out << "The store has " << checked.Count() << " dyes.\n";
}

void AddDyesSetCommand(CLI::App& dyes, Context& context)
{
    CLI::App& command =
        AddCommand(dyes, context, "set", "Say which dyes the lab has, in the order of the entries.",
                   "  tamrivo dyes set blue green yellow red purple=Dye5\n"
                   "  tamrivo dyes set green blue yellow red --recolour\n"
                   "                              also when loci have the dyes that change\n");
    const auto options = std::make_shared<SetOptions>();
    command
        .add_option("COLOUR[=NAME]", options->Dyes,
                    std::to_string(FewestDyes) + " to " + std::to_string(MostDyes) +
                        " of the colours " + ColorNames() + ", each with a name if it has one")
        ->required()
        ->type_name("");
    command.add_flag("--recolour", options->Recolor,
                     "Give dyes another colour although loci have them");
    AddReasonOption(command, context);
    command.callback([&context, options] { SetDyes(context, *options); });
}

} // namespace

void AddDyesCommand(CLI::App& program, Context& context)
{
    CLI::App& command =
        AddCommand(program, context, "dyes", "List the dyes of the lab, or change them.",
                   "  tamrivo dyes                       the editor's entries and their colours\n"
                   "  tamrivo dyes --format tsv          for a program\n"
                   "  tamrivo dyes set blue green yellow red purple\n"
                   "                                     a fifth one\n");
    const auto format = std::make_shared<OutputFormat>();
    AddFormatOption(command, *format, {OutputFormat::Table, OutputFormat::Tsv});
    command.require_subcommand(0, 1);
    AddDyesSetCommand(command, context);
    command.callback([&context, &command, format] {
        if (command.get_subcommands().empty())
            ListDyes(context, *format);
    });
}

} // namespace Tamrivo
