#include "desktop/window/panel_file_commands.h"

#include "desktop/import/export_dialog.h"
#include "desktop/import/import_dialog.h"
#include "desktop/library/library_view.h"
#include "desktop/window/parameter_view.h"
#include "desktop/window/workbench.h"
#include "host/framework/host_application.h"

#include <unordered_set>

namespace Tamrivo
{

void PanelFileCommands::ImportFiles(const QStringList& paths)
{
    const QString news = ImportPanelFiles(m_workbench.Host().Store(), m_workbench.UserActions(),
                                          &m_workbench.Window(), paths);
    if (news.isEmpty())
        return;
    LibraryView& library = m_workbench.Loci();
    std::unordered_set<std::int32_t> before;
    for (const LibraryLocus& locus : library.Loci()->Loci())
        before.insert(locus.LocusID);
    m_workbench.ShowAllLoci();
    m_workbench.Reload(news);
    std::unordered_set<std::int32_t> imported;
    for (const LibraryLocus& locus : library.Loci()->Loci())
    {
        if (!before.contains(locus.LocusID))
            imported.insert(locus.LocusID);
    }
    library.ChooseNumbers(imported);
}

void PanelFileCommands::Export()
{
    const ParameterView* parameter = m_workbench.Parameter().View();
    m_workbench.Tell(ExportLoci(m_workbench.Host().Store(), m_workbench.UserActions(),
                                &m_workbench.Window(),
                                {.Chosen = m_workbench.Loci().ChosenTags(),
                                 .Parameter = parameter ? parameter->Name() : ""}));
}

} // namespace Tamrivo
