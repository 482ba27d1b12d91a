#include "host/fit/fit_words.h"

#include "core/numbers.h"

#include <cmath>

namespace Tamrivo
{

namespace
{

std::string Text(double value)
{
    return DoubleText(FitFigure(value));
}

std::string WithError(double value, double error)
{
    return Text(value) + " \u00b1 " + Text(error) + " nt";
}

} // namespace

double FitFigure(double value)
{
    constexpr double tenThousand = 10'000;
    return std::round(value * tenThousand) / tenThousand;
}

std::vector<std::string> WordsOf(const LadderFit& fit)
{
    constexpr double thousand = 1000;
    constexpr double ten = 10;
    if (!fit.IsProposed)
        return {"No proposal. " + fit.Reason + "."};
    std::vector<std::string> words;
    for (const std::string& caution : fit.Cautions)
        words.push_back("Caution: " + caution + ".");
    words.push_back("Period " + WithError(fit.Period, fit.PeriodError) + ", offset " +
                    WithError(fit.Offset, fit.OffsetError) + ".");
    words.push_back("Mean residual " + Text(fit.MeanResidual) + " nt, in bins " +
                    Text(std::round(thousand * fit.ShareInBins) / ten) + " %, the ladder " +
                    Text(std::round(ten * fit.Gain) / ten) + " times as clear as in random sizes.");
    if (!fit.Unplaced.empty())
    {
        std::string sizes;
        for (const double size : fit.Unplaced)
            sizes.append(sizes.empty() ? "" : ", ").append(Text(size));
        words.push_back("Not placed: " + sizes + " nt.");
    }
    return words;
}

std::string ReasonText(const LadderFit& fit)
{
    std::string text = fit.Reason;
    for (const std::string& caution : fit.Cautions)
        text.append(text.empty() ? "" : ". ").append(caution);
    return text;
}

} // namespace Tamrivo
