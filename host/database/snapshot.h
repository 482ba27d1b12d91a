#pragma once

namespace Tamrivo
{

class Database;

/// What is read through a connection for as long as this lives is the store as it was when it was
/// first read. Nothing can be written through the connection meanwhile, and other writers of a file
/// wait: to be held shortly. Outside of transactions only.
class Snapshot
{
public:
    explicit Snapshot(Database& database);
    ~Snapshot();
    Snapshot(const Snapshot&) = delete;
    Snapshot& operator=(const Snapshot&) = delete;

private:
    Database& m_database;
};

} // namespace Tamrivo
