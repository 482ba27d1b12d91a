#pragma once

#include "host/checks/check_run.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace Tamrivo
{

class Dyes;
class Locus;
class Store;

/// Which of the current loci of a store are checked; at most one member says so.
struct CheckScope
{
    std::optional<std::string> Parameter; ///< Those of this analysis parameter, together.
    std::optional<std::string> Panel;     ///< Those of this panel, together.
    std::vector<std::string> Tags;        ///< These, beside those that they are analysed with.
};

/// The current loci of a store as a check looks at them: those of a panel
/// (`LocusFields::PrimerSet`) and those of an analysis parameter together. They are read in steps,
/// so that others can have their turn in between; alleles are read as the check comes to them.
class CheckReading
{
public:
    /// The store must outlive the reading and the check.
    explicit CheckReading(Store& store, CheckScope scope = {});
    ~CheckReading();

    /// Reads some more; false: all is read. Raises `StoreError::NotFound` for a parameter that the
    /// store doesn't have, and failures of the store.
    bool Step();
    /// What was read, to be taken once. Raises `StoreError::NotFound` for a panel or tag that the
    /// store doesn't have.
    CheckSource Source();

private:
    class Builder;
    std::unique_ptr<Builder> m_builder;
};

/// The same, read at once.
CheckSource CheckSourceOf(Store& store, const CheckScope& scope = {});

/// A locus of the store, which keeps what the result points to.
CheckedLocus CheckedLocusOf(Locus& locus, const Dyes& dyes);

} // namespace Tamrivo
