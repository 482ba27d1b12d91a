#pragma once

#include "contracts/object_manager.h"

#include <memory>
#include <string>

namespace Tamrivo
{

class Database;
class LocusWriter;

/// The `ObjectManager` of a store.
class StoreObjectManager : public ObjectManager
{
public:
    explicit StoreObjectManager(std::shared_ptr<Database> database);
    ~StoreObjectManager() override;

    /// Raises `ErrorNumber::InvalidArgument` for an unknown key.
    std::shared_ptr<BusinessObject> Create(std::string_view key) override;

    /// Without an ordering the objects come in the order of their numbers; loci by "Name" come in
    /// the order of their tags, folded and without trailing blanks, equal ones by number. Raises
    /// `ErrorNumber::InvalidArgument` for an unknown query or ordering.
    std::shared_ptr<ObjectList> Query(std::string_view name, std::string_view, std::string_view,
                                      std::string_view ordering, std::int32_t, bool) override;

    /// Stores a locus in one transaction, durably, and sets its `LocusID`, `LocusTagID` and
    /// `DateLastModified`. Alleles that were never loaded stay as they are in the store. A locus
    /// whose storing fails keeps its numbers as they were. Raises `StoreError::NameTaken` for the
    /// tag of another locus, `StoreError::Conflict` when someone else has changed or deleted the
    /// locus since it was read, `ErrorNumber::InvalidArgument` for any other object.
    void Save(BusinessObject& object, bool) override;

private:
    std::shared_ptr<Database> m_database;
    std::unique_ptr<LocusWriter> m_writer; ///< Made by the first save.
};

/// The one manager that is shared, created on first use.
class StoreObjectManagerGlobal : public ObjectManagerGlobal
{
public:
    explicit StoreObjectManagerGlobal(std::shared_ptr<Database> database);
    ObjectManager& Manager() override;

private:
    std::shared_ptr<Database> m_database;
    std::unique_ptr<ObjectManager> m_manager;
};

} // namespace Tamrivo
