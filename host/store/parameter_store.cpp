#include "host/store/parameter_store.h"

#include "host/database/database.h"
#include "host/database/execute.h"
#include "host/loci/keys.h"
#include "host/store/history_writer.h"
#include "host/store/parameter_tags.h"
#include "host/store/store.h"

namespace Tamrivo
{

namespace
{

std::string RequireKey(const std::string& name)
{
    std::string key = LookupKey(name);
    if (key.empty())
        throw Failure(ErrorNumber::InvalidArgument, "ParameterStore",
                      "An analysis parameter needs a name");
    return key;
}

std::string NotDone(const std::string& name, const std::string& what)
{
    return "The analysis parameter \"" + name + "\" is not " + what;
}

/// What the table AnalysisParameter holds besides names; no number when there is no row.
struct ParameterRow
{
    std::int32_t ParameterID = 0;
    std::int32_t Revision = 0;
    std::string Name;
    int LocusTagListCount = 0;
};

/// @param rowLock `Backend::RowLock` for a parameter that is to be changed
ParameterRow ReadRow(soci::session& session, const std::string& name, std::string_view rowLock = "")
{
    const std::string key = LookupKey(name);
    ParameterRow row;
    Execute(session,
            "SELECT ParameterID, Revision, Name, LocusTagListCount FROM AnalysisParameter "
            "WHERE NameKey = :NameKey" +
                std::string(rowLock),
            soci::use(key), soci::into(row.ParameterID), soci::into(row.Revision),
            soci::into(row.Name), soci::into(row.LocusTagListCount));
    return row;
}

[[noreturn]] void RaiseNotFound(const std::string& name)
{
    throw Failure(StoreError::NotFound, "ParameterStore",
                  "There is no analysis parameter \"" + name + "\"");
}

/// The row, kept from being changed by others.
ParameterRow RequireRow(Database& database, soci::session& session, const std::string& name)
{
    ParameterRow row = ReadRow(session, name, database.Backend().RowLock());
    if (row.ParameterID == 0)
        RaiseNotFound(name);
    return row;
}

/// Gives the new row's number.
std::int32_t InsertRow(Database& database, soci::session& session, const std::string& name,
                       int listCount)
{
    const std::string key = RequireKey(name);
    const std::int32_t number = database.NextNumber();
    Execute(session,
            "INSERT INTO AnalysisParameter "
            "(ParameterID, Revision, Name, NameKey, LocusTagListCount) "
            "VALUES (:ParameterID, 1, :Name, :NameKey, :LocusTagListCount)",
            soci::use(number), soci::use(name), soci::use(key), soci::use(listCount));
    return number;
}

/// All values that the query puts into `value`.
template <class Value>
std::vector<Value> ReadAll(const Value& value, soci::statement select)
{
    std::vector<Value> values;
    for (select.execute(); select.fetch();)
        values.push_back(value);
    return values;
}

/// Adds the parameter, as it is in the store now, to the history.
void RecordState(Database& database, std::int32_t number, std::string_view operation)
{
    const auto found = ReadParameters(database, "ParameterID = " + std::to_string(number));
    const ReadParameterState& parameter = found.front();
    HistoryWriter(database).Record({.Kind = HistoryKind::Parameter,
                                    .ObjectNumber = number,
                                    .Operation = operation,
                                    .Name = parameter.State.Name,
                                    .Content = ContentOf(parameter.State),
                                    .Revision = parameter.Revision});
}

} // namespace

std::vector<ReadParameterState> ReadParameters(Database& database, const std::string& condition)
{
    return database.Run("The analysis parameters are not read", [&](soci::session& session) {
        std::vector<ReadParameterState> parameters;
        {
            ReadParameterState read;
            soci::statement rows =
                (session.prepare << "SELECT ParameterID, Revision, Name, LocusTagListCount FROM "
                                    "AnalysisParameter WHERE "
                                 << condition << " ORDER BY ParameterID",
                 soci::into(read.ParameterID), soci::into(read.Revision),
                 soci::into(read.State.Name), soci::into(read.State.LocusTagListCount));
            for (rows.execute(); rows.fetch();)
                parameters.push_back(read);
        }
        for (ReadParameterState& parameter : parameters)
            parameter.State.LocusTagIDs = ReadTags(session, parameter.ParameterID);
        return parameters;
    });
}

std::vector<std::string> ParameterStore::Names()
{
    return m_store.SharedDatabase().Run(
        "The analysis parameters are not listed", [](soci::session& session) {
            std::string name;
            return ReadAll(
                name, (session.prepare << "SELECT Name FROM AnalysisParameter ORDER BY NameKey",
                       soci::into(name)));
        });
}

std::vector<std::string> ParameterStore::NamesUsing(std::int32_t locusTagID)
{
    return m_store.SharedDatabase().Run(
        "The analysis parameters that use a locus are not listed", [&](soci::session& session) {
            std::string name;
            return ReadAll(name, (session.prepare
                                      << "SELECT Name FROM AnalysisParameter WHERE ParameterID IN "
                                         "(SELECT ParameterID FROM AnalysisParameterTag "
                                         "WHERE LocusTagID = :LocusTagID) ORDER BY NameKey",
                                  soci::use(locusTagID), soci::into(name)));
        });
}

std::shared_ptr<StoredAnalysisParameter> ParameterStore::Find(const std::string& name)
{
    return m_store.SharedDatabase().Run(NotDone(name, "opened"), [&](soci::session& session) {
        const ParameterRow row = ReadRow(session, name);
        std::shared_ptr<StoredAnalysisParameter> parameter;
        if (row.ParameterID == 0)
            return parameter;

        parameter.reset(new StoredAnalysisParameter);
        parameter->m_name = row.Name;
        parameter->m_parameterID = row.ParameterID;
        parameter->m_revision = row.Revision;
        if (row.LocusTagListCount > 0)
        {
            auto& tagList = parameter->m_fragAnalysisParam.TagList.emplace();
            for (const std::int32_t tagID : ReadTags(session, row.ParameterID))
                tagList.Add(std::make_shared<StoredTagEntry>(m_store, tagID));
        }
        return parameter;
    });
}

std::shared_ptr<StoredAnalysisParameter> ParameterStore::Open(const std::string& name)
{
    auto parameter = Find(name);
    if (!parameter)
        RaiseNotFound(name);
    return parameter;
}

std::shared_ptr<StoredAnalysisParameter> ParameterStore::Create(const std::string& name,
                                                                TagLists tagLists)
{
    Database& database = m_store.SharedDatabase();
    database.Run(NotDone(name, "created"), [&](soci::session& session) {
        Transaction transaction(database);
        RecordState(database,
                    InsertRow(database, session, name, tagLists == TagLists::OneEmpty ? 1 : 0),
                    HistoryOperation::Made);
        transaction.Commit();
    });
    return Open(name);
}

void ParameterStore::Save(StoredAnalysisParameter& parameter)
{
    Database& database = m_store.SharedDatabase();
    const std::string consequence = NotDone(parameter.Name(), "stored");
    // The last save may have ended with a lost line.
    if (!parameter.m_doubtfulWitness.empty() && database.Testifies(parameter.m_doubtfulWitness))
        ++parameter.m_revision;
    parameter.m_doubtfulWitness.clear();
    database.Run(consequence, [&](soci::session& session) {
        Transaction transaction(database);
        soci::statement update =
            (session.prepare << "UPDATE AnalysisParameter SET Revision = Revision + 1 "
                                "WHERE ParameterID = :ParameterID AND Revision = :Revision",
             soci::use(parameter.m_parameterID), soci::use(parameter.m_revision));
        update.execute(true);
        if (update.get_affected_rows() == 0)
            throw Failure(StoreError::Conflict, "ParameterStore",
                          consequence + ": someone else has changed or deleted it since it was "
                                        "opened. The store is as they left it; open the "
                                        "parameter anew");
        RemoveTags(session, parameter.m_parameterID);
        if (const auto& tagList = parameter.m_fragAnalysisParam.TagList)
            InsertTags(session, parameter.m_parameterID, *tagList);
        RecordState(database, parameter.m_parameterID, HistoryOperation::Changed);
        parameter.m_doubtfulWitness = database.Witness();
        transaction.Commit();
        parameter.m_doubtfulWitness.clear();
        ++parameter.m_revision;
    });
}

void ParameterStore::Rename(const std::string& name, const std::string& newName)
{
    Database& database = m_store.SharedDatabase();
    const std::string key = RequireKey(newName);
    database.Run(NotDone(name, "renamed to \"" + newName + "\""), [&](soci::session& session) {
        Transaction transaction(database);
        const ParameterRow row = RequireRow(database, session, name);
        Execute(session,
                "UPDATE AnalysisParameter SET Revision = Revision + 1, Name = :Name, "
                "NameKey = :NameKey WHERE ParameterID = :ParameterID",
                soci::use(newName), soci::use(key), soci::use(row.ParameterID));
        RecordState(database, row.ParameterID, HistoryOperation::Changed);
        transaction.Commit();
    });
}

void ParameterStore::Duplicate(const std::string& name, const std::string& copyName)
{
    Database& database = m_store.SharedDatabase();
    database.Run(NotDone(name, "copied to \"" + copyName + "\""), [&](soci::session& session) {
        Transaction transaction(database);
        const ParameterRow row = RequireRow(database, session, name);
        const std::int32_t copy = InsertRow(database, session, copyName, row.LocusTagListCount);
        CopyTags(session, row.ParameterID, copy);
        RecordState(database, copy, HistoryOperation::Made);
        transaction.Commit();
    });
}

void ParameterStore::Delete(const std::string& name)
{
    Database& database = m_store.SharedDatabase();
    database.Run(NotDone(name, "deleted"), [&](soci::session& session) {
        Transaction transaction(database);
        const ParameterRow row = RequireRow(database, session, name);
        RemoveTags(session, row.ParameterID);
        Execute(session, "DELETE FROM AnalysisParameter WHERE ParameterID = :ParameterID",
                soci::use(row.ParameterID));
        HistoryWriter(database).Record({.Kind = HistoryKind::Parameter,
                                        .ObjectNumber = row.ParameterID,
                                        .Operation = HistoryOperation::Deleted,
                                        .Name = row.Name,
                                        .Content = {},
                                        .Revision = row.Revision + 1});
        transaction.Commit();
    });
}

std::shared_ptr<LocusTagEntry> ParameterStore::NewEntry()
{
    return std::make_shared<StoredTagEntry>(m_store);
}

} // namespace Tamrivo
