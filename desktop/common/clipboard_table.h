#pragma once

#include <string>
#include <vector>

class QTableView;

namespace Tamrivo
{

/// Copies the block around the selected cells, tab-separated as spreadsheets take it.
void CopyCells(const QTableView& table);

/// The clipboard's text as lines of cells; empty when there is none.
std::vector<std::vector<std::string>> ClipboardCells();

} // namespace Tamrivo
