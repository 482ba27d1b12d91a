#pragma once

#include <filesystem>
#include <string>

namespace Tamrivo::Testing
{

/// A PostgreSQL server of the test program's own: a cluster in a temporary folder, its socket there
/// and no port, as another user where root runs the tests. It goes with the program.
class ScratchServer
{
public:
    /// The program's one server, started now if it isn't running. Raises `std::runtime_error` with
    /// a sentence when there is no PostgreSQL to start.
    static ScratchServer& Get();

    ScratchServer();
    /// A standby of the server, which follows it by streaming replication.
    explicit ScratchServer(const ScratchServer& primary);
    ~ScratchServer();
    ScratchServer& operator=(const ScratchServer&) = delete;

    /// The address of a new, empty database.
    std::string NewDatabase();
    std::string AddressOf(const std::string& database, const std::string& user = "keeper") const;

    /// Ends the server as a power cut would.
    void Kill();
    void Start();
    /// Makes a standby a server of its own.
    void Promote() const;
    /// An address of both servers, at which programs find the one that takes writes.
    std::string AddressOfBoth(const ScratchServer& standby, const std::string& database) const;

private:
    void MakeDirectory();
    void Run(const std::string& program, const std::string& arguments) const;

    std::filesystem::path m_directory;
    int m_databases = 0;
};

} // namespace Tamrivo::Testing
