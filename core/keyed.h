#pragma once

#include <string>

namespace Tamrivo
{

/// A container whose items are found by a text.
class Keyed
{
public:
    virtual ~Keyed() = default;

    /// Whether an item stands under the key. Case doesn't count.
    virtual bool KeyExists(const std::string& key) const = 0;
};

} // namespace Tamrivo
