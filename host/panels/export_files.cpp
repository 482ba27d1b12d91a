#include "host/panels/export_files.h"

#include "core/error.h"
#include "host/panels/bins/panels_bins_writer.h"
#include "host/panels/osiris/kit_writer.h"
#include "host/panels/table/kit_table_writer.h"
#include "host/panels/table/panel_writer.h"
#include "host/panels/whole_file.h"

namespace Tamrivo
{

void WriteExport(std::ostream& out, const ExportPlan& plan, const LociProgress& progress)
{
    switch (plan.Choice.Format)
    {
    case PanelFormat::PanelTable: WritePanelTable(out, plan.Loci, plan.OfStore, progress); break;
    case PanelFormat::KitTable: WriteKitTable(out, plan, progress); break;
    case PanelFormat::OsirisKit: WriteOsirisKit(out, plan); break;
    case PanelFormat::PanelsBins:
        throw Failure(ErrorNumber::InvalidArgument, "Export",
                      "Nothing was exported: panels and bins are two files");
    }
}

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
