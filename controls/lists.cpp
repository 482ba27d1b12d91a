#include "controls/lists.h"

#include "core/error.h"
#include "core/text.h"

#include <algorithm>

namespace Tamrivo
{

const EntryList::Entry& EntryList::At(std::int32_t position) const
{
    if (position < 0 || position >= ListCount())
        throw Failure(ErrorNumber::InvalidArgument, Name(),
                      Name() + " has no entry at position " + std::to_string(position));
    return m_entries[static_cast<std::size_t>(position)];
}

void EntryList::SetItemData(std::int32_t position, std::int32_t data)
{
    At(position);
    m_entries[static_cast<std::size_t>(position)].Data = data;
}

void EntryList::Insert(std::size_t position, const std::string& text)
{
    m_entries.insert(m_entries.begin() + static_cast<std::ptrdiff_t>(position), {text});
    m_newIndex = static_cast<std::int32_t>(position);
    if (m_listIndex >= m_newIndex)
        ++m_listIndex;
    NotifyChanged();
}

void EntryList::Clear()
{
    m_entries.clear();
    m_listIndex = -1;
    m_newIndex = -1;
    NotifyChanged();
}

Tamrivo::Properties EntryList::Properties() const
{
    auto properties = Control::Properties();
    properties.insert(properties.end(), {{"ListIndex", ListIndex()}, {"ListCount", ListCount()}});
    for (std::int32_t i = 0; i < ListCount(); ++i)
    {
        const std::string position = "(" + std::to_string(i) + ")";
        properties.emplace_back("List" + position, List(i));
        properties.emplace_back("ItemData" + position, ItemData(i));
    }
    return properties;
}

ComboBox::ComboBox(const Declaration& declaration, const Settings& settings)
    : EntryList(declaration)
{
    for (const std::string& text : settings.List)
        Insert(Entries().size(), text);
}

std::string ComboBox::Text() const
{
    return ListIndex() < 0 ? "" : List(ListIndex());
}

void ComboBox::SetText(const std::string& text)
{
    const auto found = std::ranges::find(Entries(), text, &Entry::Text);
    if (found == Entries().end())
        throw Failure(ErrorNumber::InvalidArgument, Name(),
                      Name() + " has no entry \"" + text + "\"");
    SelectEntry(static_cast<std::int32_t>(found - Entries().begin()));
}

void ComboBox::SetListIndex(std::int32_t position)
{
    List(position);
    SelectEntry(position);
}

void ComboBox::AddItem(const std::string& text)
{
    Insert(Entries().size(), text);
}

Tamrivo::Properties ComboBox::Properties() const
{
    auto properties = EntryList::Properties();
    properties.emplace(properties.begin() + 1, "Text", Text());
    return properties;
}

void ListBox::Choose(std::int32_t position)
{
    List(position);
    SelectEntry(position);
    Click();
}

void ListBox::AddItem(const std::string& text)
{
    const auto place = std::ranges::upper_bound(Entries(), text, LessNoCase{}, &Entry::Text);
    Insert(static_cast<std::size_t>(place - Entries().begin()), text);
}

} // namespace Tamrivo
