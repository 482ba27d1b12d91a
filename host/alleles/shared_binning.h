#pragma once

#include "contracts/allele_pane.h"

namespace Tamrivo
{

/// The binning context of a host that looks at its flags when it needs them.
class SharedBinning : public BinningContext
{
public:
    bool Initialized() const { return m_initialized; }
    void SetInitialized(bool initialized) override { m_initialized = initialized; }

    /// Whether the allele list may have changed since the host last wrote false.
    bool ChangedFlag() const { return m_changedFlag; }
    void SetChangedFlag(bool changed) override { m_changedFlag = changed; }

private:
    bool m_initialized = false;
    bool m_changedFlag = false;
};

} // namespace Tamrivo
