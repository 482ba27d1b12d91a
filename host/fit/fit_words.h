#pragma once

#include "host/fit/ladder_fit.h"

#include <string>
#include <vector>

namespace Tamrivo
{

/// A figure of a fit, rounded to four places: further digits mean nothing.
double FitFigure(double value);

/// What a fit says of itself, for people: cautions, period and offset, residual, share and gain,
/// and the sizes that it couldn't place, an entry each; or the one why it proposes nothing.
std::vector<std::string> WordsOf(const LadderFit& fit);

/// Why nothing is proposed, or what to look at before the proposal is taken over; empty: neither.
std::string ReasonText(const LadderFit& fit);

} // namespace Tamrivo
