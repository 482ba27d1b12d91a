#pragma once

namespace Tamrivo
{

class Database;

/// A piece of work on the store that happens whole or not at all: what was written since its
/// beginning is taken back unless `Commit` has returned. Transactions may be nested on one store;
/// an inner one that is taken back takes back its own writes alone, and what it has committed
/// becomes durable with the outermost one.
///
/// Loci that were saved inside a transaction that is taken back get their numbers from before back.
class Transaction
{
public:
    /// What is written: objects, of whose changes the history has the reason, or what the store
    /// keeps of its own.
    enum class Of
    {
        Objects,
        Upkeep,
    };

    /// The outermost transaction reserves the store for writing at once: it waits up to five
    /// seconds for another writer, then raises `StoreError::Locked`. On a read-only store it is
    /// the first write that raises `StoreError::ReadOnly`.
    explicit Transaction(Database& database, Of what = Of::Objects);
    ~Transaction();

    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;

    /// Makes the writes durable. Raises a failure of the store; nothing is then stored.
    void Commit();

private:
    Database& m_database;
    bool m_open = true;
};

} // namespace Tamrivo
