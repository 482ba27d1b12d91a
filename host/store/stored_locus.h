#pragma once

#include "contracts/locus.h"
#include "host/loci/object_list.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace Tamrivo
{

class Database;
class StoredLocus;
struct LocusRow;
struct LocusState;

/// Someone who keeps loci by their tags.
class TagObserver
{
public:
    virtual ~TagObserver() = default;
    /// `rank` is what `StoredLocus::Observe` was given.
    virtual void TagChanging(StoredLocus& locus, std::uint32_t rank) = 0;
    virtual void TagChanged(StoredLocus& locus, std::uint32_t rank) = 0;
};

/// What the store says about a locus that it holds.
struct LocusIdentity
{
    std::int32_t LocusID = 0;  ///< 0: not stored.
    std::int32_t Revision = 0; ///< Goes up with each save.
    Date DateLastModified;
};

/// The identity that stands in a row of the table Locus.
LocusIdentity IdentityOf(const LocusRow& row);

/// A save of which isn't known whether it was stored.
struct DoubtfulSave
{
    LocusIdentity Identity; ///< That the locus has if it was.
    std::string Witness;    ///< See `Database::Testifies`.
};

/// A locus of the store, or a new one. A locus has one tag, whose number is that of the locus.
class StoredLocus : public Locus, public std::enable_shared_from_this<StoredLocus>
{
public:
    /// A new locus, without alleles.
    explicit StoredLocus(std::shared_ptr<Database> database);
    /// A locus as the store holds it, whose alleles are loaded when they are first asked for. The
    /// row's texts are moved out of it.
    StoredLocus(std::shared_ptr<Database> database, LocusRow& row);

    std::string Name() const override { return m_tag; }
    const std::string& LocusTag() const override { return m_tag; }
    void SetLocusTag(const std::string& tag) override;
    bool IsCurrent() const override { return m_isCurrent; }
    void SetIsCurrent(bool isCurrent) override;
    std::int32_t LocusID() const override { return m_identity.LocusID; }
    std::int32_t LocusTagID() const override { return m_identity.LocusID; }
    Date DateLastModified() const override { return m_identity.DateLastModified; }

    /// Raises `StoreError::Conflict` when the alleles are to be loaded and someone else has changed
    /// or deleted the locus since it was read, since they would not be this locus's.
    ObjectList& Alleles() override;

    /// A new locus with the fields, the tag and copies of the alleles, which loads them. It has no
    /// number yet: storing it would store a second locus.
    std::shared_ptr<Locus> Clone() override;
    /// Raises what `GenerateAlleleRows` raises, and then keeps the alleles as they were.
    void GenerateAlleles() override;
    std::string NextStartAt(const std::string& text) const override;
    std::string PreviousStartAt(const std::string& text) const override;

    /// Makes tag, fields and alleles those of the state.
    void SetState(const LocusState& state);

    /// The database that it comes from.
    Database& SharedDatabase() const { return *m_database; }
    /// The tag as it is looked up.
    const std::string& TagKey() const { return m_tagKey; }
    /// Replaces the alleles with copies, as if they had been loaded.
    void SetAlleles(const std::vector<struct AlleleFields>& rows);
    /// They are loaded anew when they are asked for.
    void ForgetAlleles() { m_alleles.reset(); }
    /// The alleles, or none while they haven't been loaded.
    const ObjectList* LoadedAlleles() const { return m_alleles.get(); }

    const LocusIdentity& Identity() const { return m_identity; }
    /// Tells the locus that it has been stored.
    void SetIdentity(const LocusIdentity& identity) { m_identity = identity; }

    void SetDoubt(DoubtfulSave doubt) { m_doubt = std::move(doubt); }
    /// Finds out, if that isn't known, whether the last save was stored.
    void SettleDoubt(Database& database);

    /// The observer hears of each change of the tag until `StopObserving` with the same rank.
    void Observe(TagObserver& observer, std::uint32_t rank);
    void StopObserving(const TagObserver& observer, std::uint32_t rank);

private:
    struct Observation
    {
        TagObserver* Observer;
        std::uint32_t Rank;
    };

    std::shared_ptr<Database> m_database;
    LocusIdentity m_identity;
    std::optional<DoubtfulSave> m_doubt;
    std::string m_tag;
    std::string m_tagKey;
    std::vector<Observation> m_observations;
    std::unique_ptr<NamedObjectList> m_alleles; ///< None until first asked for.
    bool m_isCurrent = true;
};

} // namespace Tamrivo
