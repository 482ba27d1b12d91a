#pragma once

#include "contracts/allele.h"

#include <memory>

namespace Tamrivo
{

/// An allele of a stored or a new locus.
class StoredAllele : public Allele
{
public:
    StoredAllele() = default;
    StoredAllele(const AlleleFields& fields, const std::shared_ptr<Locus>& owner) : m_owner(owner)
    {
        AlleleFields::operator=(fields);
    }

    void SetAlleleOwner(const std::shared_ptr<Locus>& owner) override { m_owner = owner; }
    /// The locus that the allele belongs to, or none.
    std::shared_ptr<Locus> AlleleOwner() const { return m_owner.lock(); }

private:
    std::weak_ptr<Locus> m_owner;
};

} // namespace Tamrivo
