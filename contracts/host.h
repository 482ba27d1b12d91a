#pragma once

#include "contracts/allele_pane.h"
#include "contracts/analysis_parameter.h"
#include "contracts/launcher.h"
#include "contracts/message_box.h"
#include "contracts/object_manager.h"
#include "contracts/page.h"
#include "contracts/service_base.h"
#include "contracts/utility.h"

#include <memory>
#include <string>

namespace Tamrivo
{

class Gridocx;
class GridHelper;
class Screen;

/// Everything that the library asks of the application around it. A host implements this one
/// interface, hands it to each object that it creates, and outlives them all.
///
/// Shared objects are created on first use and live as long as the host; New ones belong to the
/// caller. Where a host gives null for an object that is needed, the procedure that needs it fails
/// with `ErrorNumber::NoObject`.
class Host
{
public:
    virtual ~Host() = default;

    virtual Utility& SharedUtility() = 0;
    virtual Launcher& SharedLauncher() = 0;
    virtual ObjectManagerGlobal& SharedObjectManagerGlobal() = 0;
    virtual GridHelper& SharedGridHelper() = 0;
    virtual Screen& SharedScreen() = 0;

    virtual std::shared_ptr<ObjectManager> NewObjectManager() = 0;
    virtual std::shared_ptr<PageBase> NewPageBase() = 0;
    virtual std::shared_ptr<ServiceBase> NewServiceBase() = 0;
    virtual std::shared_ptr<ReportContextType> NewReportContextType() = 0;
    virtual std::shared_ptr<LocusTagEntry> NewLocusTagEntry() = 0;
    virtual std::shared_ptr<PaneAlleleList> NewPaneAlleleList() = 0;
    virtual std::shared_ptr<Gridocx> NewGrid() = 0;
    /// The collection for a wizard that the library starts. It is the host's, so that the host may
    /// hold it longer than the library stays loaded.
    virtual std::shared_ptr<ParameterCollection> NewParameterCollection()
    {
        return std::make_shared<ParameterCollection>();
    }

    /// Shows a message box and returns the person's answer. `kind` is a `MessageKind`.
    virtual MessageAnswer ShowMessage(const std::string& text, std::int32_t kind,
                                      const std::string& title) = 0;
};

} // namespace Tamrivo
