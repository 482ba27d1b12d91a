#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>

namespace Tamrivo
{

/// Results of `LocusTagEntry::Load`; any other number is another failure of the store.
namespace LoadResult
{
inline constexpr std::int32_t Loaded = 0;
inline constexpr std::int32_t NoConnection = -30981;
inline constexpr std::int32_t NoSuchTag = -30984;
} // namespace LoadResult

/// One locus tag in the list of an analysis parameter.
class LocusTagEntry
{
public:
    virtual ~LocusTagEntry() = default;

    /// `Locus::LocusTagID` of the tag; the argument is always 0.
    virtual std::int32_t TagID(std::int32_t) const = 0;
    /// The tag by which `Load` finds the entry.
    virtual void SetTagName(const std::string& tag) = 0;
    /// Loads the entry from the store and gives a `LoadResult`.
    virtual std::int32_t Load() = 0;
};

/// The locus tags that an analysis parameter uses, in their order.
class LocusTagEntries
{
public:
    virtual ~LocusTagEntries() = default;

    virtual std::span<const std::shared_ptr<LocusTagEntry>> Entries() const = 0;
    virtual void Clear() = 0;
    virtual void Add(const std::shared_ptr<LocusTagEntry>& entry) = 0;
};

/// The part of an analysis parameter that concerns fragment analysis.
class FragAnalysisParam
{
public:
    virtual ~FragAnalysisParam() = default;

    virtual std::int16_t LocusTagListCount() const = 0;
    /// The list with a 0-based number; only 0 is ever asked for.
    virtual LocusTagEntries& LocusTagList(std::int16_t number) = 0;
};

/// An analysis parameter set.
class AnalysisParameter
{
public:
    virtual ~AnalysisParameter() = default;
    virtual Tamrivo::FragAnalysisParam& FragAnalysisParam() = 0;
};

} // namespace Tamrivo
