#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace Tamrivo
{

/// Runs the program `tamrivo` with its arguments, the program's name left out, and gives an
/// `ExitStatus`.
int RunProgram(std::vector<std::string> arguments, std::istream& in, std::ostream& out,
               std::ostream& err);

} // namespace Tamrivo
