#include "desktop/alleles/bin_shapes.h"

#include "core/numbers.h"
#include "desktop/common/text.h"

#include <algorithm>

namespace Tamrivo
{

std::vector<BinShape> ShapesOf(const AlleleRows& rows, const LengthRange& range)
{
    std::vector<BinShape> shapes;
    for (const auto& allele : rows)
    {
        const auto [from, to] = std::minmax(allele->AlleleReal2, allele->AlleleReal3);
        const double size = allele->AlleleReal1;
        const bool isInside = range.From <= size && size <= range.To;
        shapes.push_back({static_cast<std::int32_t>(shapes.size()) + 1, from, to, size,
                          isInside ? BinState::InOrder : BinState::OutOfRange,
                          allele->AlleleInt2 == 1, ToQString(allele->AlleleText1)});
    }
    for (const auto& [row, other] : OverlappingBins(rows))
    {
        for (const std::int32_t overlapping : {row, other})
            shapes[static_cast<std::size_t>(overlapping - 1)].State = BinState::Overlapping;
    }
    return shapes;
}

QString Describe(const BinShape& shape)
{
    const QString name = shape.Name.isEmpty() ? QString("without a name") : shape.Name;
    QString text = QString("Row %1: %2, %3 nt, bin %4 to %5 nt")
                       .arg(shape.Row)
                       .arg(name, ToQString(DoubleText(shape.Size)),
                            ToQString(DoubleText(shape.From)), ToQString(DoubleText(shape.To)));
    if (shape.State == BinState::Overlapping)
        text += "\nOverlaps another bin";
    else if (shape.State == BinState::OutOfRange)
        text += "\nLies outside the fragment range";
    if (!shape.HasWidth())
        text += "\nThe bin has no width";
    if (shape.IsVirtual)
        text += "\nVirtual: not in the ladder";
    return text;
}

} // namespace Tamrivo
