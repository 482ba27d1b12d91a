#pragma once

#include "host/reports/table.h"

#include <ostream>

namespace Tamrivo
{

/// Prints a table for people at a terminal: columns in line, the titles over a rule.
void PrintAligned(std::ostream& out, const Table& table);

} // namespace Tamrivo
