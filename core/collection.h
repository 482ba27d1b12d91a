#pragma once

#include "core/error.h"
#include "core/keyed.h"
#include "core/text.h"

#include <cstddef>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace Tamrivo
{

/// Items in the order in which they were added, found by key. Keys don't mind case; the empty key
/// stands for none and may be given any number of times.
template <class T>
class Collection : public Keyed
{
public:
    /// Appends an item. Raises `ErrorNumber::KeyTaken` when another item has the key.
    void Add(T item, const std::string& key = {})
    {
        if (!key.empty() && !m_positions.emplace(key, m_items.size()).second)
            throw Failure(ErrorNumber::KeyTaken, "Collection",
                          "The key \"" + key + "\" is already in the collection");
        m_items.push_back(std::move(item));
    }

    /// The item with the key. Raises `ErrorNumber::InvalidArgument` when there is none.
    const T& Item(const std::string& key) const { return m_items[Position(key)]; }

    /// Removes the item with the key. Raises `ErrorNumber::InvalidArgument` when there is none.
    void Remove(const std::string& key)
    {
        const std::size_t position = Position(key);
        m_positions.erase(m_positions.find(key));
        m_items.erase(m_items.begin() + static_cast<std::ptrdiff_t>(position));
        for (auto& [otherKey, otherPosition] : m_positions)
            otherPosition -= otherPosition > position ? 1U : 0U;
    }

    bool KeyExists(const std::string& key) const override { return m_positions.contains(key); }
    std::size_t Count() const { return m_items.size(); }

    /// The keys, sorted.
    std::vector<std::string> Keys() const
    {
        std::vector<std::string> keys;
        for (const auto& [key, position] : m_positions)
            keys.push_back(key);
        return keys;
    }

    auto begin() const { return m_items.begin(); }
    auto end() const { return m_items.end(); }

private:
    std::size_t Position(const std::string& key) const
    {
        const auto found = m_positions.find(key);
        if (found == m_positions.end())
            throw Failure(ErrorNumber::InvalidArgument, "Collection",
                          "The collection has no key \"" + key + "\"");
        return found->second;
    }

    std::vector<T> m_items;
    std::map<std::string, std::size_t, LessNoCase> m_positions;
};

} // namespace Tamrivo
