#include "host/panels/export_files.h"

#include "host/panels/bins/panels_bins_writer.h"
#include "host/panels/whole_file.h"

namespace Tamrivo
{

void WriteExportFiles(const ExportPlan& plan, const std::vector<std::string>& paths,
                      const LociProgress& progress)
{
    if (plan.Choice.Format == PanelFormat::PanelsBins)
        WriteWholeFiles({{paths.at(0), [&](std::ostream& out) { WritePanelsFile(out, plan); }},
                         {paths.at(1), [&](std::ostream& out) { WriteBinsFile(out, plan); }}});
    else
        WriteWholeFile(paths.at(0), [&](std::ostream& out) { WriteExport(out, plan, progress); });
}

} // namespace Tamrivo
