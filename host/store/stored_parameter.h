#pragma once

#include "contracts/analysis_parameter.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace Tamrivo
{

class Store;

/// A locus tag in a parameter's list, kept by the number of the tag.
class StoredTagEntry : public LocusTagEntry
{
public:
    /// An empty entry.
    explicit StoredTagEntry(Store& store) : m_store(&store) {}
    StoredTagEntry(Store& store, std::int32_t tagID) : m_store(&store), m_tagID(tagID) {}

    std::int32_t TagID(std::int32_t) const override { return m_tagID; }
    void SetTagName(const std::string& tag) override { m_tagName = tag; }

    /// Finds the tag, without minding case or trailing blanks. Gives `LoadResult::NoConnection`
    /// when the store is gone or locked, and the number of the `StoreError` for any other failure.
    /// Only a result of `LoadResult::Loaded` changes `TagID`.
    std::int32_t Load() override;

private:
    Store* m_store;
    std::string m_tagName;
    std::int32_t m_tagID = 0;
};

class StoredTagEntries : public LocusTagEntries
{
public:
    std::span<const std::shared_ptr<LocusTagEntry>> Entries() const override { return m_entries; }
    void Clear() override { m_entries.clear(); }
    void Add(const std::shared_ptr<LocusTagEntry>& entry) override { m_entries.push_back(entry); }

private:
    std::vector<std::shared_ptr<LocusTagEntry>> m_entries;
};

class StoredFragAnalysisParam : public FragAnalysisParam
{
public:
    std::int16_t LocusTagListCount() const override { return TagList ? 1 : 0; }
    /// Raises `ErrorNumber::InvalidArgument` for a list that the parameter doesn't have.
    LocusTagEntries& LocusTagList(std::int16_t number) override;

    std::optional<StoredTagEntries> TagList;
};

/// An analysis parameter as `ParameterStore` read it. Changes to it stay in memory until
/// `ParameterStore::Save`.
class StoredAnalysisParameter : public AnalysisParameter
{
public:
    const std::string& Name() const { return m_name; }
    StoredFragAnalysisParam& FragAnalysisParam() override { return m_fragAnalysisParam; }

private:
    friend class ParameterStore;
    StoredAnalysisParameter() = default;

    std::string m_name;
    std::int32_t m_parameterID = 0;
    std::int32_t m_revision = 0;
    std::string m_doubtfulWitness; ///< Of a save of which isn't known whether it was stored.
    StoredFragAnalysisParam m_fragAnalysisParam;
};

} // namespace Tamrivo
