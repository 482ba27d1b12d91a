#pragma once

#include <string>

namespace Tamrivo
{

class Control;
class Label;

/// The label that stands for a control without a caption of its own: the one on its left in the
/// same row, else the one above it. Null when there is none.
const Label* LabelOf(const Control& control);

/// What a screen reader calls a control without a caption: the captions on its left in its row,
/// across a field as long as a caption goes on with the row ("Range between: [ ] and [ ]"), else
/// the label above it. A spin button is called what its field is called.
std::string AccessibleName(const Control& control);

} // namespace Tamrivo
