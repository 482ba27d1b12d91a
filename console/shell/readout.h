#pragma once

#include "contracts/locus.h"
#include "controls/control.h"

#include <ostream>
#include <string>
#include <vector>

namespace Tamrivo
{

// How the shell writes what is read.

/// A value: a number plain, a truth value as a word, a text in double quotes.
std::string ValueText(const PropertyValue& value);

/// A line for each property, as PROPERTY=VALUE.
void PrintProperties(std::ostream& out, const Properties& properties);

/// A line of cells, separated by tabs.
void PrintRow(std::ostream& out, const std::vector<std::string>& cells);

/// The properties of a control, those of a grid or an allele pane behind it included.
Properties ReadableProperties(const Control& control);

/// The properties of a locus, in the order of its declaration.
void PrintLocus(std::ostream& out, Locus& locus);

} // namespace Tamrivo
