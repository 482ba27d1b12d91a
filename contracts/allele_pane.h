#pragma once

#include "contracts/allele.h"
#include "core/event.h"

namespace Tamrivo
{

/// The host's pane that shows the alleles of a locus and lets a person edit them.
class PaneAlleleList
{
public:
    virtual ~PaneAlleleList() = default;

    /// Shows the alleles of this locus and works on them from now on.
    virtual void SetLocus(const std::shared_ptr<Locus>& oLocus) = 0;
    /// Shows the alleles anew, after `Locus::GenerateAlleles` has rebuilt them.
    virtual void RefreshAlleles() = 0;

    Event<Allele&> AlleleEdited;  ///< A person has changed a row.
    Event<> ListChanged;          ///< Rows have been added or removed.
    Event<bool&> ValidityChanged; ///< Whether the list is valid, whenever that changes.
};

/// What the host shares with an editor page in binning mode.
class BinningContext
{
public:
    virtual ~BinningContext() = default;
    virtual void SetInitialized(bool initialized) = 0;
    /// True: the allele list may have changed.
    virtual void SetChangedFlag(bool changed) = 0;
};

} // namespace Tamrivo
