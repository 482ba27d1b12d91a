#pragma once

#include "console/commands/command.h"

namespace Tamrivo
{

// The subcommands that judge definitions and propose better ones.

void AddCheckCommand(CLI::App& program, Context& context);
void AddFitCommand(CLI::App& program, Context& context);

} // namespace Tamrivo
