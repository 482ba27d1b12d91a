#include "host/panels/marker_name.h"

#include "host/panels/panel_marker.h"

namespace Tamrivo
{

std::string MarkerOf(const Locus& locus)
{
    const bool isOfPanel = !locus.PrimerSet.empty() &&
                           locus.LocusTag() == MarkerInPanel(locus.LocusName, locus.PrimerSet);
    return isOfPanel ? locus.LocusName : locus.LocusTag();
}

} // namespace Tamrivo
