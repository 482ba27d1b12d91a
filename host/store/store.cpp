#include "host/store/store.h"

#include "core/text.h"
#include "host/database/database.h"
#include "host/loci/locus_tag.h"
#include "host/store/dye_table.h"
#include "host/store/first_records.h"
#include "host/store/history.h"
#include "host/store/history_content.h"
#include "host/store/locus_table.h"
#include "host/store/object_manager.h"
#include "host/store/projects.h"
#include "host/store/seal.h"
#include "host/store/settings.h"

namespace Tamrivo
{

Store::Store(const std::string& address)
    : m_database(std::make_shared<Database>(address, RecordWhatIsFound)),
      m_identity(m_database->Run("Nothing was opened", IdentityIn)),
      m_managerGlobal(std::make_unique<StoreObjectManagerGlobal>(m_database))
{}

Store::~Store()
{
    try
    {
        if (m_database->Witnesses() > 0)
            WriteSeals(*m_database);
    }
    catch (const std::exception&)
    {
        // Whoever stores next writes the seals.
    }
}

const std::string& Store::Name() const
{
    return m_database->Name();
}

std::string Store::Identity()
{
    return ReadIdentity(*m_database);
}

bool Store::IsLost() const
{
    return m_database->IsLost();
}

void Store::OpenAgain()
{
    m_database->OpenAgain([this](soci::session& there) {
        if (IdentityIn(there) != m_identity)
            throw Failure(StoreError::Unreachable, "Store",
                          "The store is not opened again: what stands at \"" + Name() +
                              "\" by now is another store, which was left alone. Bring the former "
                              "one back, or open the other one as such");
    });
}

void Store::RequireWritable() const
{
    m_database->RequireWritable("Nothing is stored");
}

bool Store::IsReadOnly() const
{
    return m_database->IsReadOnly();
}

Connection Store::OnProgress(std::function<void()> handler)
{
    return m_database->Progress.Connect(std::move(handler));
}

std::shared_ptr<ObjectManager> Store::NewManager()
{
    return std::make_shared<StoreObjectManager>(m_database);
}

std::shared_ptr<Locus> Store::FindLocus(const std::string& tag)
{
    return ReadLocus(m_database, tag);
}

std::vector<std::shared_ptr<StoredLocus>> Store::CurrentLociAfter(std::int32_t number,
                                                                  std::size_t most)
{
    return ReadCurrentLoci(m_database, number, most);
}

std::unordered_set<std::string> Store::TagKeys()
{
    return ReadTagKeys(*m_database);
}

void Store::DeleteLocus(const std::string& tag)
{
    LocusWriter(*m_database).Remove(tag);
}

std::shared_ptr<Locus> Store::LocusAt(const std::string& tag, const std::string& at)
{
    const HistoryRecord record = Tamrivo::History(*m_database).LocusRecordAt(tag, at);
    auto locus = std::make_shared<StoredLocus>(m_database);
    locus->SetState(LocusStateOf(record));
    locus->SetIdentity({record.ObjectNumber, record.Revision,
                        std::chrono::floor<std::chrono::seconds>(record.When())});
    return locus;
}

std::string Store::RestoreLocus(const std::string& tag, const std::string& at,
                                const std::string& newTag)
{
    Tamrivo::History history(*m_database);
    // Who asks for another tag means the locus that can't have its own.
    const auto deleted = newTag.empty() ? std::nullopt : history.DeletedLocusRecordAt(tag, at);
    return RestoreLocus(deleted ? *deleted : history.LocusRecordAt(tag, at), newTag);
}

std::string Store::RestoreLocus(const HistoryRecord& record, const std::string& newTag)
{
    std::string restored;
    Together([&] {
        LocusState state = LocusStateOf(record);
        if (!newTag.empty())
            state.Tag = newTag;
        RequireLocusTag(state.Tag);
        RequireFreeTag(record.ObjectNumber, state.Tag);
        // The project may have gone since.
        if (!state.Fields.ProjectName.empty())
            state.Fields.ProjectID = ProjectNamed(state.Fields.ProjectName)->ProjectID();
        LocusWriter(*m_database).Restore(record.ObjectNumber, state);
        restored = state.Tag;
    });
    return restored;
}

void Store::RequireFreeTag(std::int32_t locusID, const std::string& tag)
{
    const std::int32_t owner = FindLocusNumber(*m_database, tag);
    if (owner != 0 && owner != locusID)
        throw Failure(StoreError::NameTaken, "Store",
                      "The locus is not restored: another one has the tag \"" + tag +
                          "\" now. Restore it under another tag (--as TAG)");
}

void Store::SetReason(const std::string& reason)
{
    constexpr std::size_t longest = 1000;
    if (Decode(reason).size() > longest)
        throw Failure(ErrorNumber::InvalidArgument, "Store",
                      "A reason has at most 1,000 characters. Give a shorter one; nothing was "
                      "stored");
    m_database->Notes.Reason = reason;
}

bool Store::IsReasonRequired()
{
    return Tamrivo::IsReasonRequired(*m_database);
}

void Store::SetReasonRequired(bool required)
{
    Tamrivo::SetReasonRequired(*m_database, required);
}

void Store::Together(const std::function<void()>& writes)
{
    m_database->Run("Nothing was stored", [&](soci::session&) {
        Transaction transaction(*m_database);
        writes();
        transaction.Commit();
    });
}

Tamrivo::Dyes Store::Dyes()
{
    return ReadDyes(*m_database);
}

std::vector<std::size_t> Store::LociByDye()
{
    return CountLociByDye(*m_database, Dyes());
}

void Store::SetDyes(const Tamrivo::Dyes& dyes, bool recolor)
{
    WriteDyes(*m_database, dyes, recolor);
}

std::shared_ptr<Project> Store::FindProject(const std::string& name)
{
    return ReadProject(*m_database, name);
}

std::shared_ptr<Project> Store::ProjectNamed(const std::string& name)
{
    if (auto project = FindProject(name))
        return project;
    try
    {
        return AddProject(*m_database, name);
    }
    catch (const Failure& failure)
    {
        // Someone else may have made it just now.
        auto project =
            failure.Record().Number == StoreError::NameTaken ? FindProject(name) : nullptr;
        if (!project)
            throw;
        return project;
    }
}

} // namespace Tamrivo
