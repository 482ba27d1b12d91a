#pragma once

#include "host/panels/allele_update.h"
#include "host/panels/marker_fields.h"
#include "host/panels/panel_files.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace Tamrivo::Fuzz
{

/// Reads files of a format and does with their markers what a plan does with them.
inline void ReadAll(std::span<const PanelFile> files, PanelFormat format)
{
    PanelReading reading = ReadPanels(files, {.Format = format});
    for (const PanelComplaint& complaint : reading.Complaints)
        complaint.Text();
    for (const PanelMarker& marker : reading.Markers)
    {
        LocusFields fields;
        const std::vector<AlleleFields> alleles = AllelesOf(marker);
        ApplyMarker(marker, alleles, {}, true, fields);
        UpdateAlleles(alleles, alleles, marker);
    }
}

inline std::string Text(const std::uint8_t* data, std::size_t size)
{
    return {reinterpret_cast<const char*>(data), size};
}

} // namespace Tamrivo::Fuzz
