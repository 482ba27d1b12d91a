#include "tests/server/scratch_server.h"

#include <soci/postgresql/soci-postgresql.h>
#include <soci/soci.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <thread>
#include <vector>

namespace Tamrivo::Testing
{

namespace
{

namespace fs = std::filesystem;

/// The folder of the server's programs, which Debian keeps out of the PATH.
fs::path ProgramFolder()
{
    std::vector<fs::path> found;
    std::error_code ignored;
    for (const auto& version : fs::directory_iterator("/usr/lib/postgresql", ignored))
    {
        if (fs::exists(version.path() / "bin" / "initdb"))
            found.push_back(version.path() / "bin");
    }
    if (found.empty())
        throw std::runtime_error("The tests of the store on a server need PostgreSQL: install "
                                 "the package postgresql (make test does)");
    return *std::ranges::max_element(found);
}

/// Root may not run the server.
std::string AsAnotherUser()
{
    return geteuid() == 0 ? "setpriv --reuid=nobody --regid=nogroup --clear-groups -- " : "";
}

} // namespace

ScratchServer& ScratchServer::Get()
{
    static ScratchServer server;
    return server;
}

void ScratchServer::MakeDirectory()
{
    std::string name = fs::temp_directory_path() / "tamrivo_server.XXXXXX";
    m_directory = mkdtemp(name.data());
    if (geteuid() == 0 && std::system(("chown nobody:nogroup " + name).c_str()) != 0)
        throw std::runtime_error("The folder of the scratch server can't be given away");
}

ScratchServer::ScratchServer()
{
    MakeDirectory();
    Run("initdb", "--pgdata=data --username=keeper --auth=trust --encoding=UTF8 --no-sync");
    Start();
}

ScratchServer::ScratchServer(const ScratchServer& primary)
{
    MakeDirectory();
    Run("pg_basebackup", "--pgdata=data --write-recovery-conf --no-sync --checkpoint=fast "
                         "--username=keeper --host=" +
                             primary.m_directory.string());
    Start();
}

void ScratchServer::Promote() const
{
    Run("pg_ctl", "promote --wait --pgdata=data");
}

std::string ScratchServer::AddressOfBoth(const ScratchServer& standby,
                                         const std::string& database) const
{
    return AddressOf(database) + "," + standby.m_directory.string() +
           "&target_session_attrs=read-write";
}

ScratchServer::~ScratchServer()
{
    try
    {
        Run("pg_ctl", "stop --pgdata=data --mode=immediate");
    }
    catch (const std::exception&)
    {
        // It was killed.
    }
    std::error_code ignored;
    fs::remove_all(m_directory, ignored);
}

void ScratchServer::Start()
{
    Run("pg_ctl", "start --wait --pgdata=data --log=log -o \"-k " + m_directory.string() +
                      " -c listen_addresses=''\"");
}

void ScratchServer::Kill()
{
    std::ifstream file(m_directory / "data" / "postmaster.pid");
    pid_t server = 0;
    if (!(file >> server))
        return;
    // What serves its connections would go on for a while, and keep another server from starting.
    const std::string number = std::to_string(server);
    std::ifstream children("/proc/" + number + "/task/" + number + "/children");
    std::vector<pid_t> processes{server};
    for (pid_t child = 0; children >> child;)
        processes.push_back(child);
    for (const pid_t process : processes)
        kill(process, SIGKILL);
    for (const pid_t process : processes)
    {
        while (kill(process, 0) == 0)
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
}

void ScratchServer::Run(const std::string& program, const std::string& arguments) const
{
    const std::string output = m_directory / "output";
    const std::string command = "cd " + m_directory.string() + " && " + AsAnotherUser() +
                                (ProgramFolder() / program).string() + " " + arguments + " >" +
                                output + " 2>&1";
    if (std::system(command.c_str()) == 0)
        return;
    std::ostringstream text;
    text << std::ifstream(output).rdbuf();
    throw std::runtime_error(program + " of PostgreSQL fails: " + text.str());
}

std::string ScratchServer::NewDatabase()
{
    const std::string name = "test" + std::to_string(++m_databases);
    soci::session(*soci::factory_postgresql(),
                  "host='" + m_directory.string() + "' user=keeper dbname=postgres")
        << "CREATE DATABASE " << name;
    return AddressOf(name);
}

std::string ScratchServer::AddressOf(const std::string& database, const std::string& user) const
{
    return "postgresql://" + user + "@/" + database + "?host=" + m_directory.string();
}

} // namespace Tamrivo::Testing
