#pragma once

#include "contracts/host.h"
#include "contracts/page.h"
#include "core/guard.h"
#include "core/reference.h"
#include "saveas/save_as_locus_form.h"

#include <memory>

namespace Tamrivo
{

/// The one page of the wizard "SaveLocusTagAs": asks for the tag under which a new locus is to be
/// stored, shows the tags that exist, and stores the locus.
///
/// The locus stands in the wizard's parameters under `ParameterKey::SaveLocusAs`, made and filled
/// by whoever started the wizard, who goes on with it afterwards: a tag that has changed tells that
/// the page has stored it. The page is valid for a tag that no current locus bears, blanks at its
/// end aside. It can't refuse to be completed; a failing store is reported and the wizard ends.
class SaveAsLocusPage final : public SaveAsLocusForm, public IPageAccess, private Guarded
{
public:
    explicit SaveAsLocusPage(Host& host);

    std::shared_ptr<PageBase> Page() override;

private:
    void UserControl_Initialize();
    void ConnectPageBase();
    void m_oPageBase_Initialize();
    void m_oPageBase_Validate(bool& bIsValid);
    void m_oPageBase_Save();
    void txtLocusName_Change();
    void lstLocusNameList_Click();
    void LoadLocusNameList();

    /// The collection that the page shares with whoever started the wizard.
    ParameterCollection& Parameters() const;
    ObjectManager& Objects() const { return m_host.SharedObjectManagerGlobal().Manager(); }

    Host& m_host;
    Reference<ObjectList> m_oCurrentLoci;
    Reference<Locus> m_oSaveLocus;
    Reference<PageBase> m_oPageBase;
    Connections m_connections;
};

} // namespace Tamrivo
