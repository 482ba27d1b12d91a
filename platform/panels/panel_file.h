#pragma once

#include "platform/panels/panel_reader.h"
#include "platform/panels/panel_writer.h"

#include <string>

namespace Tamrivo
{

/// Reads the panel table in a file. Raises `ErrorNumber::InvalidArgument` when the file can't be
/// read.
PanelReading ReadPanelFile(const std::string& path);

/// Writes loci as a panel table into a file. A file that stands there is replaced once the new one
/// is complete. Raises `ErrorNumber::InvalidArgument` when the file can't be written, and failures
/// of the store; what stood there is then kept.
void WritePanelFile(const std::string& path, std::span<const std::shared_ptr<BusinessObject>> loci,
                    const LociProgress& progress = {});

} // namespace Tamrivo
