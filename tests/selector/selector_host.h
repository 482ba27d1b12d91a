#pragma once

#include "host/grid/grid_model_helper.h"
#include "tests/fakes/fake_host.h"
#include "tests/selector/grid_readings.h"

#include <map>

namespace Tamrivo::Fakes
{

/// What loading a tag gives; a tag that isn't there is loaded by its locus's number.
using LoadResults = std::map<std::string, std::int32_t>;

class FakeEntry : public LocusTagEntry
{
public:
    FakeEntry(const LoadResults& results, const ObjectList& loci) : m_results(results), m_loci(loci)
    {}
    std::int32_t TagID(std::int32_t) const override { return Id; }
    void SetTagName(const std::string& tag) override { Tag = tag; }
    std::int32_t Load() override
    {
        if (const auto found = m_results.find(Tag); found != m_results.end())
            return found->second;
        if (!m_loci.KeyExists(Tag))
            return LoadResult::NoSuchTag;
        Id = As<Locus>(m_loci.Item(Tag))->LocusTagID();
        return LoadResult::Loaded;
    }

    std::string Tag;
    std::int32_t Id = 0;

private:
    const LoadResults& m_results;
    const ObjectList& m_loci;
};

/// An analysis parameter with one list, or none.
class FakeParameter : public AnalysisParameter, public FragAnalysisParam, public LocusTagEntries
{
public:
    Tamrivo::FragAnalysisParam& FragAnalysisParam() override { return *this; }
    std::int16_t LocusTagListCount() const override { return Lists; }
    LocusTagEntries& LocusTagList(std::int16_t) override { return *this; }
    std::span<const std::shared_ptr<LocusTagEntry>> Entries() const override { return List; }
    void Clear() override { List.clear(); }
    void Add(const std::shared_ptr<LocusTagEntry>& entry) override { List.push_back(entry); }

    std::vector<std::string> Tags() const
    {
        std::vector<std::string> tags;
        for (const auto& entry : List)
            tags.push_back(dynamic_cast<const FakeEntry&>(*entry).Tag);
        return tags;
    }

    std::int16_t Lists = 1;
    std::vector<std::shared_ptr<LocusTagEntry>> List;
};

/// A host with the real grids, on loci that are numbered in the order of their creation.
class SelectorHost : public FakeHost
{
public:
    GridHelper& SharedGridHelper() override { return *Helper; }
    std::shared_ptr<Gridocx> NewGrid() override { return MakeGrid(); }
    std::shared_ptr<LocusTagEntry> NewLocusTagEntry() override
    {
        return std::make_shared<FakeEntry>(LoadResults, Objects.Lists["CurrentLoci"]);
    }

    /// Puts a locus into the store under the next number.
    std::shared_ptr<FakeLocus> Store(const std::shared_ptr<FakeLocus>& locus,
                                     const std::string& tag)
    {
        locus->Tag = tag;
        if (locus->TagId == 0)
        {
            locus->TagId = ++m_lastId;
            Objects.Lists["CurrentLoci"].Add(locus);
        }
        locus->Modified = std::chrono::sys_seconds(std::chrono::hours(24 * ++m_days));
        return locus;
    }
    std::shared_ptr<FakeLocus> Store(const std::string& tag)
    {
        return Store(std::make_shared<FakeLocus>(), tag);
    }

    std::shared_ptr<GridHelper> Helper = std::make_shared<GridModelHelper>();
    std::function<std::shared_ptr<Gridocx>()> MakeGrid = [] {
        return std::make_shared<GridModel>();
    };
    Fakes::LoadResults LoadResults;

private:
    std::int32_t m_lastId = 0;
    int m_days = 0;
};

} // namespace Tamrivo::Fakes
