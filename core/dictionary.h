#pragma once

#include "core/error.h"

#include <string>
#include <unordered_set>
#include <utility>
#include <vector>

namespace Tamrivo
{

/// Items under keys that must match to the letter, in the order in which they were added.
template <class T>
class Dictionary
{
public:
    /// Raises `ErrorNumber::KeyTaken` when the key is present.
    void Add(const std::string& key, T item)
    {
        if (!m_keys.insert(key).second)
            throw Failure(ErrorNumber::KeyTaken, "Dictionary",
                          "The key \"" + key + "\" is already in the dictionary");
        m_entries.emplace_back(key, std::move(item));
    }

    /// Pairs of key and item, in their order.
    const std::vector<std::pair<std::string, T>>& Entries() const { return m_entries; }

private:
    std::vector<std::pair<std::string, T>> m_entries;
    std::unordered_set<std::string> m_keys;
};

} // namespace Tamrivo
