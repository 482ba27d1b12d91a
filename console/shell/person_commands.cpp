#include "console/shell/arguments.h"
#include "console/shell/command_table.h"
#include "console/shell/shell.h"
#include "controls/form_user.h"
#include "host/alleles/pane_user.h"
#include "host/grid/grid_user.h"

#include <algorithm>
#include <iterator>
#include <limits>

// What a person does with the page on top.

namespace Tamrivo
{

namespace
{

User::FormUser Person(Shell& shell)
{
    return User::FormUser(PageOnTop(shell));
}

void Type(Shell& shell, const Words& arguments)
{
    Person(shell).Type(arguments[0], arguments[1]);
}

void Press(Shell& shell, const Words& arguments)
{
    constexpr std::int32_t lastCode = 0xD7FF; // behind it come halves of characters
    Person(shell).Press(arguments[0],
                        static_cast<char32_t>(Number(arguments[1], "key code", 1, lastCode)));
}

void Paste(Shell& shell, const Words& arguments)
{
    Person(shell).Paste(arguments[0], arguments[1]);
}

void Leave(Shell& shell, const Words& arguments)
{
    Person(shell).Leave(arguments[0]);
}

void Click(Shell& shell, const Words& arguments)
{
    Person(shell).Click(arguments[0]);
}

void Choose(Shell& shell, const Words& arguments)
{
    Person(shell).Choose(arguments[0], arguments[1]);
}

void Up(Shell& shell, const Words& arguments)
{
    Person(shell).Up(arguments[0]);
}

void Down(Shell& shell, const Words& arguments)
{
    Person(shell).Down(arguments[0]);
}

void Pick(Shell& shell, const Words& arguments)
{
    OpenMenu& open = *shell.Stage().TopMenu();
    for (Control* child : open.Shown.Children())
    {
        auto* item = dynamic_cast<MenuItem*>(child);
        if (!item || item->Name() != arguments[0] || item->IsSeparator())
            continue;
        User::RequireReach(*item);
        open.Picked = item;
        open.IsClosed = true;
        return;
    }
    throw User::Refusal("the menu has no item \"" + arguments[0] + "\"");
}

void Dismiss(Shell& shell, const Words&)
{
    shell.Stage().TopMenu()->IsClosed = true;
}

void Answer(Shell& shell, const Words& arguments)
{
    struct Button
    {
        std::string_view Word;
        MessageAnswer Answer;
        bool OfYesNo;
    };
    static constexpr Button buttons[] = {
        {"ok", MessageAnswer::Ok, false},
        {"yes", MessageAnswer::Yes, true},
        {"no", MessageAnswer::No, true},
    };
    OpenMessage& open = *shell.Stage().TopMessage();
    const bool isYesNo = open.Kind == MessageKind::ExclamationYesNo;
    const auto* button = std::ranges::find(buttons, arguments[0], &Button::Word);
    if (button == std::end(buttons) || button->OfYesNo != isYesNo)
        throw User::Refusal("the message box has no button \"" + arguments[0] + "\"; answer " +
                            (isYesNo ? "yes or no" : "ok"));
    open.Answer = button->Answer;
}

// The grids

struct CellAction
{
    std::string_view Word;
    void (*Act)(User::GridControl& grid, std::int32_t row, std::int32_t column);
};

constexpr CellAction cellActions[] = {
    {"click", User::Click},
    {"toggle", [](auto& grid, std::int32_t row, std::int32_t) { User::Toggle(grid, row); }},
    {"extend", [](auto& grid, std::int32_t row, std::int32_t) { User::ExtendTo(grid, row); }},
    {"double", User::DoubleClick},
    {"right", User::RightClick},
};

constexpr std::int32_t anyNumber = std::numeric_limits<std::int32_t>::max();

void Cell(Shell& shell, const Words& arguments)
{
    auto& grid = NamedControlAs<User::GridControl>(shell, arguments[0], "a grid");
    const auto* action = std::ranges::find(cellActions, arguments[1], &CellAction::Word);
    if (action == std::end(cellActions))
        throw User::Refusal("there is no \"" + arguments[1] +
                            "\"; a cell takes click, toggle, extend, double or right");
    const std::int32_t row = Number(arguments[2], "row", 0, anyNumber);
    const std::int32_t column =
        arguments.size() > 3 ? Number(arguments[3], "column", 1, anyNumber) : 1;
    action->Act(grid, row, column);
}

// The allele pane

std::int32_t Row(const std::string& word)
{
    return Number(word, "row", 1, anyNumber);
}

const AlleleColumn& Column(const std::string& word)
{
    const auto* column = std::ranges::find(AlleleColumns, word, &AlleleColumn::Name);
    if (column != std::end(AlleleColumns) && column->SetText != nullptr)
        return *column;
    std::string names;
    for (const AlleleColumn& each : AlleleColumns)
    {
        if (each.SetText != nullptr)
            names += " " + std::string(each.Name);
    }
    throw User::Refusal("there is no column \"" + word + "\"; the columns are" + names);
}

void ActOnAlleles(const User::AllelePaneControl& pane, const Words& arguments)
{
    const std::string& action = arguments[0];
    if (action == "add" && arguments.size() == 1)
        User::AddAllele(pane);
    else if (action == "add" && arguments.size() == 2)
        User::AddAllele(pane, Row(arguments[1]));
    else if (action == "remove" && arguments.size() == 2)
        User::RemoveAllele(pane, Row(arguments[1]));
    else if (action == "undo" && arguments.size() == 1)
        User::UndoAlleles(pane);
    else if (action == "redo" && arguments.size() == 1)
        User::RedoAlleles(pane);
    else if (arguments.size() == 3)
        User::EditAllele(pane, Row(action), Column(arguments[1]), arguments[2]);
    else
        throw User::Refusal("usage: allele ROW COLUMN TEXT, allele add, allele add ROW, "
                            "allele remove ROW, allele undo or allele redo");
}

void EditAllele(Shell& shell, const Words& arguments)
{
    const User::AllelePaneControl& pane = AllelePaneOnTop(shell);
    ActOnAlleles(pane, arguments);
    User::LeaveAllele(pane);
}

using enum Allowed;

constexpr ShellCommand personCommands[] = {
    {"type", "CONTROL TEXT", 2, 2, Otherwise, "type the text at the end of a field", Type},
    {"press", "CONTROL CODE", 2, 2, Otherwise, "press a key by its code; 8 is Backspace", Press},
    {"paste", "CONTROL TEXT", 2, 2, Otherwise, "replace a field's text at once", Paste},
    {"leave", "CONTROL", 1, 1, Otherwise, "turn away from a field", Leave},
    {"click", "CONTROL", 1, 1, Otherwise, "click a button, box, option or menu item", Click},
    {"choose", "CONTROL TEXT", 2, 2, Otherwise, "choose an entry of a list", Choose},
    {"up", "CONTROL", 1, 1, Otherwise, "click the upper arrow of a spin button", Up},
    {"down", "CONTROL", 1, 1, Otherwise, "click the lower arrow of a spin button", Down},
    {"cell", "GRID click|toggle|extend|double|right ROW [COLUMN]", 3, 4, Otherwise,
     "click a cell; row 0 is the header", Cell},
    {"allele", "add|remove|undo|redo|ROW [COLUMN] [TEXT]", 1, 3, Otherwise, "edit the allele pane",
     EditAllele},
    {"pick", "ITEM", 1, 1, InMenu, "choose an item of the open menu", Pick},
    {"dismiss", "", 0, 0, InMenu, "close the open menu", Dismiss},
    {"answer", "ok|yes|no", 1, 1, InMessage, "answer the open message box", Answer},
};

} // namespace

CommandGroup PersonCommands()
{
    return {"A person", personCommands};
}

} // namespace Tamrivo
