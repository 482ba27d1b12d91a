#include "console/shell/arguments.h"

#include "console/shell/shell.h"
#include "console/shell/words.h"
#include "contracts/object_manager.h"

#include <algorithm>
#include <charconv>

namespace Tamrivo
{

namespace
{

std::vector<std::string> ControlNames(Shell& shell)
{
    std::vector<std::string> names;
    if (const UserControl* page = shell.Stage().Page())
        std::ranges::transform(page->Controls(), std::back_inserter(names), &Control::Name);
    return names;
}

std::vector<std::string> ItemNames(Shell& shell)
{
    std::vector<std::string> names;
    if (const OpenMenu* menu = shell.Stage().TopMenu())
        std::ranges::transform(menu->Shown.Children(), std::back_inserter(names), &Control::Name);
    return names;
}

std::vector<std::string> Tags(Shell& shell)
{
    std::vector<std::string> tags;
    const auto loci = CurrentLoci(shell.Host().Store().Manager(), "Name");
    for (const auto& locus : loci->Members())
    {
        const std::string tag = locus->Name();
        tags.push_back(tag.find(' ') == std::string::npos ? tag : Quoted(tag));
    }
    return tags;
}

std::vector<std::string> ParameterNames(Shell& shell)
{
    return shell.Host().Parameters().Names();
}

struct Placeholder
{
    std::string_view Name;
    std::vector<std::string> (*Candidates)(Shell& shell);
};

constexpr Placeholder placeholders[] = {
    {"CONTROL", ControlNames},
    {"CONTROL[.PROPERTY]", ControlNames},
    {"GRID", ControlNames},
    {"ITEM", ItemNames},
    {"TAG", Tags},
    {"NAME", ParameterNames},
};

/// The words of "add|remove".
std::vector<std::string> Alternatives(std::string_view word)
{
    std::vector<std::string> alternatives;
    while (!word.empty())
    {
        const std::size_t end = std::min(word.find('|'), word.size());
        alternatives.emplace_back(word.substr(0, end));
        word.remove_prefix(std::min(end + 1, word.size()));
    }
    return alternatives;
}

} // namespace

UserControl& PageOnTop(const Shell& shell)
{
    if (UserControl* page = shell.Stage().Page())
        return *page;
    throw User::Refusal("no page is open; new, edit and parameter open one");
}

Control& NamedControl(const Shell& shell, const std::string& name)
{
    const UserControl& page = PageOnTop(shell);
    if (Control* control = page.Find(name))
        return *control;
    throw User::Refusal(std::string(page.Name()) + " has no control " + name);
}

User::AllelePaneControl& AllelePaneOnTop(const Shell& shell)
{
    const UserControl& page = PageOnTop(shell);
    for (Control* control : page.Controls())
    {
        if (auto* pane = dynamic_cast<User::AllelePaneControl*>(control))
            return *pane;
    }
    throw User::Refusal(std::string(page.Name()) + " has no allele pane");
}

std::int32_t Number(const std::string& word, std::string_view meaning, std::int32_t low,
                    std::int32_t high)
{
    std::int32_t number = 0;
    const char* end = word.data() + word.size();
    const auto [stop, error] = std::from_chars(word.data(), end, number);
    if (error != std::errc() || stop != end || number < low || number > high)
        throw User::Refusal("\"" + word + "\" is no " + std::string(meaning) +
                            "; that is a whole number from " + std::to_string(low) + " to " +
                            std::to_string(high));
    return number;
}

bool TruthValue(const std::string& word)
{
    if (word != "true" && word != "false")
        throw User::Refusal("\"" + word + "\" is neither true nor false");
    return word == "true";
}

bool HasOption(const std::vector<std::string>& words, std::size_t first, std::string_view option)
{
    if (words.size() <= first)
        return false;
    if (words[first] != option)
        throw User::Refusal("\"" + words[first] + "\" is not " + std::string(option));
    return true;
}

std::vector<std::string> ArgumentCandidates(Shell& shell, std::string_view arguments,
                                            std::size_t position)
{
    const Words words = SplitWords(arguments);
    if (position >= words.size())
        return {};
    std::string_view word = words[position];
    const auto* placeholder = std::ranges::find(placeholders, word, &Placeholder::Name);
    if (placeholder != std::end(placeholders))
        return placeholder->Candidates(shell);
    if (word.starts_with('['))
        word = word.substr(1, word.size() - 2);
    // Capitals stand for something that can't be guessed.
    return word.empty() || (word.front() >= 'A' && word.front() <= 'Z') ? std::vector<std::string>{}
                                                                        : Alternatives(word);
}

} // namespace Tamrivo
