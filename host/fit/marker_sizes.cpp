#include "host/fit/marker_sizes.h"

#include "host/fit/observed_reader.h"
#include "host/loci/keys.h"

namespace Tamrivo
{

MarkerSizes::MarkerSizes(ObservedReader& reader, const std::vector<std::string>& wanted,
                         const LineProgress& progress)
{
    constexpr std::size_t linesAtOnce = 4096;
    for (const std::string& marker : wanted)
    {
        if (!marker.empty())
            m_markers.try_emplace(LookupKey(marker));
    }
    ObservedLine line;
    while (reader.Next(line))
    {
        if (++m_lineCount % linesAtOnce == 0 && progress)
            progress(m_lineCount);
        const std::string& name = line.Cells[reader.MarkerColumn()];
        const auto marker = wanted.empty() ? m_markers.try_emplace(LookupKey(name)).first
                                           : m_markers.find(LookupKey(name));
        if (marker == m_markers.end())
            continue;
        auto& [lines, sizes] = marker->second;
        ++lines;
        sizes.insert(sizes.end(), line.Sizes.begin(), line.Sizes.end());
        if (sizes.size() > MostOfMarker)
            reader.Refuse(" has more than " + std::to_string(MostOfMarker) + " sizes of " + name +
                          "; expected fewer, those of some samples are enough");
    }
}

const MarkerSizes::Markers::value_type* MarkerSizes::Of(const std::string& tag,
                                                        const std::string& name) const
{
    for (const std::string& marker : {tag, name})
    {
        const auto found = m_markers.find(LookupKey(marker));
        if (!marker.empty() && found != m_markers.end() && found->second.Lines > 0)
            return &*found;
    }
    return nullptr;
}

} // namespace Tamrivo
