#pragma once

#include "automation/object.h"
#include "contracts/analysis_parameter.h"
#include "contracts/object_manager.h"

namespace Tamrivo::Automation
{

/// The object manager of a host that is called by name. Layouts of grids and single alleles, which
/// are no client's concern, are made here.
std::shared_ptr<ObjectManager> NewNamedManager(ObjectPointer client);

/// An entry that finds its tag among the current loci. `objects` outlives it.
std::shared_ptr<LocusTagEntry> NewNamedEntry(ObjectManager& objects);

/// The property LocusTags of a client's object as an analysis parameter.
class NamedParameter final : public AnalysisParameter,
                             public FragAnalysisParam,
                             private LocusTagEntries
{
public:
    /// Reads the tags. Raises `ErrorNumber::InvalidArgument` for one that no current locus bears.
    NamedParameter(ObjectPointer client, ObjectManager& objects);

    Tamrivo::FragAnalysisParam& FragAnalysisParam() override { return *this; }
    /// Gives the client the tags as they stand now.
    void WriteBack();

private:
    std::int16_t LocusTagListCount() const override { return 1; }
    LocusTagEntries& LocusTagList(std::int16_t) override { return *this; }
    std::span<const std::shared_ptr<LocusTagEntry>> Entries() const override { return m_entries; }
    void Clear() override { m_entries.clear(); }
    void Add(const std::shared_ptr<LocusTagEntry>& entry) override { m_entries.push_back(entry); }

    ObjectPointer m_client;
    std::vector<std::shared_ptr<LocusTagEntry>> m_entries;
};

} // namespace Tamrivo::Automation
