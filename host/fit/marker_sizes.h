#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <unordered_map>
#include <vector>

namespace Tamrivo
{

class ObservedReader;

/// Told again and again how many lines of a table have been read. What it throws ends the reading.
using LineProgress = std::function<void(std::size_t lines)>;

/// The sizes of markers in a table of observed sizes. Of markers that aren't wanted nothing is
/// kept, so that a table may be of any length.
class MarkerSizes
{
public:
    struct Marker
    {
        std::size_t Lines = 0;
        std::vector<double> Sizes; ///< nt, in the table's order.
    };
    using Markers = std::unordered_map<std::string, Marker>; ///< By `LookupKey`.

    /// A locus has at most as many sizes, which are some hundred thousand samples.
    static constexpr std::size_t MostOfMarker = 1'000'000;

    /// Reads the table to its end. Raises `ErrorNumber::InvalidArgument` for more than
    /// `MostOfMarker` sizes of one, and what the reader raises.
    /// @param wanted tags and names of loci; empty: all markers are wanted
    explicit MarkerSizes(ObservedReader& reader, const std::vector<std::string>& wanted = {},
                         const LineProgress& progress = {});

    /// The marker of a locus: its tag, else its name, case aside. Null: the table has neither.
    const Markers::value_type* Of(const std::string& tag, const std::string& name) const;
    const Markers& All() const { return m_markers; }
    /// Of the table, those of all markers.
    std::size_t LineCount() const { return m_lineCount; }

private:
    Markers m_markers;
    std::size_t m_lineCount = 0;
};

} // namespace Tamrivo
