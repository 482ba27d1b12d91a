#pragma once

#include <QFlags>

#include <span>
#include <tuple>
#include <type_traits>

class QMenu;

namespace Tamrivo
{

class Commands;
class HelpCommands;
class HistoryCommands;
class LocusCommands;
class PanelFileCommands;
class ParameterCommands;
class ReportCommands;
class SearchCommands;
class StoreCommands;
class ViewCommands;

/// What must be there for a command.
enum class Need
{
    Store = 1 << 0,     ///< An open store.
    Writing = 1 << 1,   ///< One that may be written.
    Table = 1 << 2,     ///< The table of loci, not the selector's page.
    Parameter = 1 << 3, ///< An open analysis parameter.
    Changes = 1 << 4,   ///< Unsaved ones of its selection, which may be saved.
    OneLocus = 1 << 5,  ///< Exactly one chosen locus.
    SomeLoci = 1 << 6,  ///< At least one.
    TwoLoci = 1 << 7,   ///< Exactly two.
};
Q_DECLARE_FLAGS(Needs, Need)
Q_DECLARE_OPERATORS_FOR_FLAGS(Needs)

/// Where a command stands besides its menu and the list of commands. The toolbar's are named in
/// their own order, in `Commands`.
enum class CommandPlace
{
    LocusMenu = 1 << 0,     ///< The menu of the table of loci.
    ParameterMenu = 1 << 1, ///< Of a parameter among the groups.
    SearchMenu = 1 << 2,    ///< Of a kept search among the groups.
    ParameterBar = 1 << 3,
    NoStore = 1 << 4,    ///< The page that is shown while no store is open.
    EmptyStore = 1 << 5, ///< The page of a store without loci.
};
Q_DECLARE_FLAGS(CommandPlaces, CommandPlace)
Q_DECLARE_OPERATORS_FOR_FLAGS(CommandPlaces)

/// The objects that carry commands out.
using CommandTargets =
    std::tuple<Commands&, StoreCommands&, PanelFileCommands&, SearchCommands&, LocusCommands&,
               ParameterCommands&, HistoryCommands&, ReportCommands&, ViewCommands&, HelpCommands&>;

using CommandProcedure = void (*)(const CommandTargets& targets);
using SubmenuProcedure = QMenu& (*)(const CommandTargets& targets);

template <class Target, class Result>
Target* TargetOf(Result (Target::*member)());

/// A member of one of the targets as the procedure of a command, by which the command is found too.
template <auto Member>
decltype(auto) Do(const CommandTargets& targets)
{
    using Target = std::remove_pointer_t<decltype(TargetOf(Member))>;
    return (std::get<Target&>(targets).*Member)();
}

/// A command: a row of the menus, in the list of commands, and in further places.
struct Command
{
    const char* Menu; ///< Null: a separator.
    const char* Text;
    const char* Icon;
    const char* Keys;
    const char* Tip;
    Tamrivo::Needs Needs;
    CommandPlaces Places;
    CommandProcedure Run;               ///< Null for a submenu.
    SubmenuProcedure Submenu = nullptr; ///< Makes a menu that stands in the place of the command.
};

/// All commands, in the order of the menus.
std::span<const Command> AllCommands();

} // namespace Tamrivo
