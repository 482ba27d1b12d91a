#pragma once

#include "host/store/history_content.h"
#include "host/store/stored_parameter.h"

#include <memory>
#include <string>
#include <vector>

namespace Tamrivo
{

class Database;
class Store;

/// An analysis parameter as the store has it.
struct ReadParameterState
{
    std::int32_t ParameterID = 0;
    std::int32_t Revision = 0;
    ParameterState State;
};

/// The parameters that meet a condition on the columns of the table AnalysisParameter, in SQL, in
/// the order of their numbers.
std::vector<ReadParameterState> ReadParameters(Database& database, const std::string& condition);

/// What a new analysis parameter begins with.
enum class TagLists
{
    None,
    OneEmpty,
};

/// The analysis parameters of a store, known by name. Names don't mind case or trailing blanks.
/// Every member may raise the failures of `StoreError` and then leaves the store as it was.
class ParameterStore
{
public:
    /// The store must outlive this object and the parameters that come out of it.
    explicit ParameterStore(Store& store) : m_store(store) {}

    /// All names, ordered without minding case.
    std::vector<std::string> Names();

    /// The parameter with the name, or none.
    std::shared_ptr<StoredAnalysisParameter> Find(const std::string& name);
    /// The parameter with the name. Raises `StoreError::NotFound`.
    std::shared_ptr<StoredAnalysisParameter> Open(const std::string& name);
    /// Stores a new parameter. Raises `StoreError::NameTaken`, `ErrorNumber::InvalidArgument` for
    /// an empty name.
    std::shared_ptr<StoredAnalysisParameter> Create(const std::string& name, TagLists tagLists);

    /// Stores the parameter's tag list in one transaction. A tag that stands in the list more than
    /// once is stored at its first place. Raises `StoreError::Conflict` when someone else has
    /// changed or deleted the parameter since it was read.
    void Save(StoredAnalysisParameter& parameter);

    /// Raises `StoreError::NotFound`, `StoreError::NameTaken`.
    void Rename(const std::string& name, const std::string& newName);
    /// Stores a copy under another name. Raises `StoreError::NotFound`, `StoreError::NameTaken`.
    void Duplicate(const std::string& name, const std::string& copyName);
    /// Raises `StoreError::NotFound`.
    void Delete(const std::string& name);

    /// Names of the parameters whose stored list has the tag, ordered without minding case.
    std::vector<std::string> NamesUsing(std::int32_t locusTagID);

    /// A new, empty entry for a parameter's list.
    std::shared_ptr<LocusTagEntry> NewEntry();

private:
    Store& m_store;
};

} // namespace Tamrivo
