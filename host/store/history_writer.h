#pragma once

#include "host/store/history_record.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace Tamrivo
{

class Database;

/// A change to be recorded.
struct Change
{
    std::string_view Kind;
    std::int32_t ObjectNumber = 0;
    std::string_view Operation;
    std::string Name;
    std::string Content;
    std::int32_t Revision = 0; ///< 0: the one after the object's last.
};

/// Adds to the history, with statements that are prepared once a connection. Its members are called
/// inside the transaction of the change and raise the failures of SOCI.
class HistoryWriter
{
public:
    explicit HistoryWriter(Database& database);
    ~HistoryWriter();

    /// Whoever changes an object keeps others from it until the end of the transaction. Raises
    /// `StoreError::NoReason` when the store asks for a reason and the connection has none.
    void Record(const Change& change);

private:
    struct Statements;
    Database& m_database;
    std::unique_ptr<Statements> m_statements;
};

/// The revision of the object's last record, 0 for none.
std::int32_t LastRevision(Database& database, std::string_view kind, std::int32_t objectNumber);

} // namespace Tamrivo
