#pragma once

#include "host/checks/check_rules.h"
#include "host/loci/dyes.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <unordered_set>
#include <vector>

namespace Tamrivo
{

class Store;
class StoredLocus;

/// The loci that one which is being edited is analysed with: the current ones of its panel and of
/// the analysis parameters that use it. They are read in steps, so that the editor can go on.
class LociBeside
{
public:
    /// The store must outlive it.
    /// @param dyes  those of the store
    /// @param tag   of the edited locus, which isn't beside itself; the store need not know it
    /// @param panel that the locus is of by now; empty: none
    LociBeside(Store& store, const Dyes& dyes, const std::string& tag, const std::string& panel);
    ~LociBeside();

    /// Reads some more; false: all are read. Raises failures of the store.
    bool Step();

    /// What is found in the edited locus, by itself and beside those that are read by now, in the
    /// order of the rules. Takes n log n time for n alleles of loci that come near it.
    std::vector<Finding> FindingsOf(const CheckedLocus& edited) const;

private:
    struct Beside;

    void ReadNumbers();
    void ReadLoci();
    void ReadAlleles();

    Store& m_store;
    Dyes m_dyes;
    std::string m_tag;
    std::string m_panel;                                       ///< Folded.
    std::optional<std::unordered_set<std::int32_t>> m_numbers; ///< Of loci in those parameters.
    std::int32_t m_last = 0;                                   ///< Number that was read.
    bool m_isRead = false;
    std::vector<std::shared_ptr<StoredLocus>> m_loci;
    std::vector<Beside> m_beside; ///< Those of the loci whose alleles are read.
};

} // namespace Tamrivo
