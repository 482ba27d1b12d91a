#pragma once

#include "contracts/business_object.h"

namespace Tamrivo
{

/// A stored layout of a grid's columns, known by its number.
class Grid : public BusinessObject
{
public:
    virtual std::int32_t GridID() const = 0;
    virtual void SetGridID(std::int32_t gridID) = 0;
};

} // namespace Tamrivo
