#include "console/commands/command.h"
#include "console/commands/difference_lines.h"
#include "console/commands/stored_loci.h"
#include "host/store/history_content.h"
#include "host/store/store.h"
#include "host/store/stored_locus.h"

#include <memory>
#include <vector>

namespace Tamrivo
{

namespace
{

struct DiffOptions
{
    std::string Tag;
    std::string OtherTag;
    std::vector<std::string> At;
};

/// The locus as it was at a moment or revision; as it is now without one.
std::string ContentAt(Store& store, const std::string& tag, const std::string& at)
{
    const auto locus = at.empty() ? RequireLocus(store, tag) : store.LocusAt(tag, at);
    locus->Alleles();
    return ContentOf(StateOf(*As<StoredLocus>(locus)));
}

void Diff(Context& context, const DiffOptions& options)
{
    if (options.OtherTag.empty() && options.At.empty())
        throw Failure(ErrorNumber::InvalidArgument, "Diff",
                      "There is nothing to compare with: name a second locus, or an earlier state "
                      "with --at");
    Store store(context.StoreLocation);
    const auto at = [&](std::size_t index) {
        return index < options.At.size() ? options.At[index] : std::string();
    };
    const std::string& second = options.OtherTag.empty() ? options.Tag : options.OtherTag;
    const auto differences =
        ContentDifferences(ContentAt(store, options.Tag, at(0)), ContentAt(store, second, at(1)));
    PrintDifferences(context.Out, differences, "");
    if (differences.empty())
        context.Out << "There is no difference.\n";
    else
        context.Status = ExitStatus::Failed;
}

} // namespace

void AddDiffCommand(CLI::App& program, Context& context)
{
    CLI::App& command =
        AddCommand(program, context, "diff", "Compare two loci, or two states of one.",
                   "  tamrivo diff D3S1358 vWA                  two loci, field by field\n"
                   "  tamrivo diff D3S1358 --at 3               revision 3 and now\n"
                   "  tamrivo diff D3S1358 --at 3 --at 2026-11-23\n"
                   "                                            two earlier states\n"
                   "The status is 0 when there is no difference, else 1.\n");
    const auto options = std::make_shared<DiffOptions>();
    command.add_option("TAG", options->Tag, "The first locus")->required()->type_name("");
    command.add_option("TAG2", options->OtherTag, "The second one; by default the same")
        ->type_name("");
    command
        .add_option("--at", options->At,
                    "The state to compare: a revision, or a date and time in UTC; the first is for "
                    "the first locus, the second for the second. Without one: as it is now")
        ->type_name("WHEN|REVISION")
        ->expected(1)
        ->take_all();
    command.callback([&context, options] { Diff(context, *options); });
}

} // namespace Tamrivo
