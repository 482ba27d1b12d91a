#pragma once

#include "host/fit/ladder_fit.h"

#include <string>
#include <vector>

namespace Tamrivo
{

/// A figure of a fit, rounded to four places: further digits mean nothing.
double FitFigure(double value);

/// What a fit says of itself, for people: period and offset, residual, share and gain, and the
/// sizes that it couldn't place, a sentence each; or the one why it proposes nothing.
std::vector<std::string> WordsOf(const LadderFit& fit);

} // namespace Tamrivo
