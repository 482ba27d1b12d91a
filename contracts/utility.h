#pragma once

#include "core/guard.h"
#include "core/keyed.h"

#include <cstdint>
#include <string>

namespace Tamrivo
{

class TextField;

/// The framework's one utility object.
class Utility : public FailureReporter
{
public:
    /// Whether the container has the key. Case and trailing blanks don't count.
    virtual bool KeyExists(const Keyed& container, const std::string& key) const = 0;
    /// Whether the field's text is a whole number from `low` to `high`.
    virtual bool IsIntegerInRange(const TextField& control, std::int32_t low,
                                  std::int32_t high) const = 0;
};

} // namespace Tamrivo
