#pragma once

#include "controls/control.h"
#include "core/event.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Tamrivo
{

/// Entries with texts, of which one may be chosen. Positions are counted from 0.
class EntryList : public Control
{
public:
    using Control::Control;

    /// Position of the chosen entry; -1: none.
    std::int32_t ListIndex() const { return m_listIndex; }
    std::int32_t ListCount() const { return static_cast<std::int32_t>(m_entries.size()); }
    /// Text of an entry. Raises `ErrorNumber::InvalidArgument` when there is none at the position.
    const std::string& List(std::int32_t position) const { return At(position).Text; }
    /// The number kept beside an entry. Raises as `List`.
    std::int32_t ItemData(std::int32_t position) const { return At(position).Data; }
    void SetItemData(std::int32_t position, std::int32_t data);
    /// Position of the entry added last; -1: none.
    std::int32_t NewIndex() const { return m_newIndex; }

    /// Adds an entry at the place where the list keeps it.
    virtual void AddItem(const std::string& text) = 0;
    /// Removes all entries.
    void Clear();

    bool IsTabStop() const override { return true; }
    Tamrivo::Properties Properties() const override;

protected:
    struct Entry
    {
        std::string Text;
        std::int32_t Data = 0;
    };

    const std::vector<Entry>& Entries() const { return m_entries; }
    void Insert(std::size_t position, const std::string& text);
    bool SelectEntry(std::int32_t position) { return Assign(m_listIndex, position); }

private:
    const Entry& At(std::int32_t position) const;

    std::vector<Entry> m_entries;
    std::int32_t m_listIndex = -1;
    std::int32_t m_newIndex = -1;
};

/// A closed drop-down list.
class ComboBox : public EntryList
{
public:
    struct Settings
    {
        std::vector<std::string> List;
    };

    ComboBox(const Declaration& declaration, const Settings& settings);

    /// The text of the chosen entry; empty when there is none.
    std::string Text() const;
    /// Chooses the first entry with this text. Raises `ErrorNumber::InvalidArgument` when there is
    /// none.
    void SetText(const std::string& text);

    /// Chooses the entry at a position. Raises `ErrorNumber::InvalidArgument` when there is none.
    void SetListIndex(std::int32_t position);

    void AddItem(const std::string& text) override;
    Tamrivo::Properties Properties() const override;
};

/// A list that keeps its entries sorted, without minding case.
class ListBox : public EntryList
{
public:
    using EntryList::EntryList;

    /// Chooses the entry at a position and raises `Click`. Raises `ErrorNumber::InvalidArgument`
    /// when there is none.
    void Choose(std::int32_t position);

    void AddItem(const std::string& text) override;

    Event<> Click;
};

} // namespace Tamrivo
