#pragma once

#include "host/panels/table/panel_reader.h"

#include <sstream>
#include <string>

namespace Tamrivo
{

/// What a text says as a panel table.
inline PanelReading ReadTable(const std::string& text)
{
    std::istringstream bytes(text);
    LineReader source(bytes);
    return ReadPanelTable(source);
}

} // namespace Tamrivo
