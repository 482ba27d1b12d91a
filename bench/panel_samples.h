#pragma once

#include <string>

namespace Tamrivo::Bench
{

// The same loci, 4,000 markers with 25 alleles each, in every format.

inline constexpr int SampleMarkers = 4'000;
inline constexpr int SampleAlleles = 25;

std::string SamplePanelTable();
std::string SampleKitTable();
std::string SamplePanelsFile();
std::string SampleBinsFile();
std::string SampleKitFile();

} // namespace Tamrivo::Bench
