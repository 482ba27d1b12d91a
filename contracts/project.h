#pragma once

#include "contracts/business_object.h"

namespace Tamrivo
{

/// A project, to which loci belong. `Name` is its name.
class Project : public BusinessObject
{
public:
    virtual std::int32_t ProjectID() const = 0;
};

} // namespace Tamrivo
