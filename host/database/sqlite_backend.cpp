#include "host/database/backend.h"
#include "host/database/execute.h"
#include "host/database/sqlite_backup.h"
#include "host/database/sqlite_row.h"
#include "host/database/store_failure.h"

#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <utility>

namespace Tamrivo
{

namespace
{

sqlite_api::sqlite3*& Handle(soci::session& session)
{
    return static_cast<soci::sqlite3_session_backend*>(session.get_backend())->conn_;
}

void MakeDirectoryOf(const std::filesystem::path& file)
{
    std::error_code error;
    std::filesystem::create_directories(file.parent_path(), error);
    if (error)
        throw Failure(StoreError::Unreachable, "Store",
                      "The store \"" + file.string() + "\" can't be opened: its directory \"" +
                          file.parent_path().string() + "\" can't be made (" + error.message() +
                          "). Choose another place for it");
}

class SqliteBackend : public Backend
{
public:
    explicit SqliteBackend(const std::string& path) : m_file(std::filesystem::absolute(path)) {}

    std::string_view Dialect() const override { return "sqlite"; }
    std::string_view SerialKey() const override { return "INTEGER PRIMARY KEY AUTOINCREMENT"; }

    void Connect(soci::session& session) override
    {
        MakeDirectoryOf(m_file);
        if (std::filesystem::is_directory(m_file))
            throw Failure(StoreError::Unreachable, "Store",
                          "The store \"" + m_file.string() +
                              "\" can't be opened: it is a directory. Name a file in it");
        Open(session);
        sqlite_api::sqlite3_busy_timeout(Handle(session), LockTimeoutSeconds * 1000);
        sqlite_api::sqlite3_extended_result_codes(Handle(session), 1);
        // A rollback journal keeps the store one file that can be copied, and readable on a
        // read-only disk, neither of which holds for a write-ahead log. "extra" also syncs the
        // directory that the journal is deleted from, without which a power cut just after a
        // commit could bring the journal back and undo it.
        Execute(session, "PRAGMA synchronous = EXTRA");
        // In KiB. What a large import changes would else be written out, and the journal synced,
        // again and again before its end.
        Execute(session, "PRAGMA cache_size = -65536");
        // What a savepoint may have to bring back is kept in memory too, not in a file of its own.
        Execute(session, "PRAGMA temp_store = MEMORY");
    }

    void OpenAgain(soci::session& session, const std::function<void(soci::session&)>& use) override
    {
        // Else an empty store would be made in the place of the one that is missing.
        if (!std::filesystem::exists(m_file))
            throw soci::sqlite3_soci_error("its file is not there", SQLITE_CANTOPEN);
        soci::session there;
        Connect(there);
        use(there);
        std::swap(Handle(session), Handle(there));
    }

    std::string WhyReadOnly(soci::session& session) override
    {
        if (sqlite_api::sqlite3_db_readonly(Handle(session), "main") == 1)
            return "its file can't be written. Make it writable, or work on a copy";
        std::error_code ignored;
        const auto file = std::filesystem::weakly_canonical(m_file, ignored);
        if (access(file.parent_path().c_str(), W_OK) != 0)
            return "its folder can't be written, in which each change is prepared. Make the "
                   "folder writable, or work on a copy";
        return {};
    }

    bool IsReachable(soci::session& session) override
    {
        // An open file outlives its removal, so that writes to it would be lost in silence.
        int moved = 0;
        sqlite_api::sqlite3_file_control(Handle(session), "main", SQLITE_FCNTL_HAS_MOVED, &moved);
        return moved == 0;
    }

    std::string Place(soci::session&) override { return PlaceOfFile(m_file); }

    std::vector<std::string> Faults(soci::session& session) override
    {
        std::vector<std::string> faults;
        std::string fault;
        soci::statement rows = (session.prepare << "PRAGMA integrity_check(20)", soci::into(fault));
        for (rows.execute(); rows.fetch();)
        {
            if (fault != "ok")
                faults.push_back(fault);
        }
        return faults;
    }

    void BeginSnapshot(soci::session& session) override { Execute(session, "BEGIN"); }

    bool BackUpTo(soci::session& session, const std::string& file,
                  const std::function<void()>& progress) override
    {
        BackUpSqlite(Handle(session), file, progress);
        return true;
    }

    void Begin(soci::session& session) override { Execute(session, "BEGIN IMMEDIATE"); }

    void Commit(soci::session& session, const std::string&) override { Execute(session, "COMMIT"); }

    std::int32_t NextNumber(soci::session& session) override
    {
        std::int32_t number = 0;
        Execute(session, "UPDATE LastNumber SET Number = Number + 1");
        Execute(session, "SELECT Number FROM LastNumber", soci::into(number));
        return number;
    }

    std::int32_t LastNumber(soci::session& session) override
    {
        std::int32_t number = 0;
        Execute(session, "SELECT Number FROM LastNumber", soci::into(number));
        return number;
    }

    void SetLastNumber(soci::session& session, std::int32_t number) override
    {
        Execute(session, "UPDATE LastNumber SET Number = " + std::to_string(number));
    }

    std::int32_t ErrorNumberOf(const soci::soci_error& error) const override
    {
        const auto* sqliteError = dynamic_cast<const soci::sqlite3_soci_error*>(&error);
        const int extendedCode = sqliteError ? sqliteError->result() : SQLITE_ERROR;
        if (extendedCode == SQLITE_CONSTRAINT_UNIQUE)
            return StoreError::NameTaken;

        switch (extendedCode & 0xFF)
        {
        case SQLITE_BUSY:
        case SQLITE_LOCKED: return StoreError::Locked;
        case SQLITE_READONLY: return StoreError::ReadOnly;
        case SQLITE_FULL: return StoreError::DiskFull;
        case SQLITE_NOTADB:
        case SQLITE_CORRUPT: return StoreError::NotAStore;
        case SQLITE_CANTOPEN:
        case SQLITE_IOERR:
        case SQLITE_PERM: return StoreError::Unreachable;
        default: return StoreError::Database;
        }
    }

    void BindInto(soci::statement& statement, const RowTargets& targets) const override
    {
        // The statement takes the element over.
        statement.exchange(soci::details::into_type_ptr(new SqliteRow(targets)));
    }

private:
    /// SOCI reads the path out of a text in which not every path can be written; so it opens
    /// nothing, and is given the file's connection.
    void Open(soci::session& session)
    {
        session.open(*soci::factory_sqlite3(), ":memory:");
        auto*& connection = Handle(session);
        sqlite_api::sqlite3_close(std::exchange(connection, nullptr));
        const int result = sqlite_api::sqlite3_open_v2(
            m_file.c_str(), &connection, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
        if (result != SQLITE_OK)
            throw soci::sqlite3_soci_error(sqlite_api::sqlite3_errmsg(connection), result);
    }

    std::filesystem::path m_file;
};

} // namespace

std::string PlaceOfFile(const std::string& path)
{
    struct stat file
    {};
    if (stat(path.c_str(), &file) != 0)
        return "sqlite " + std::filesystem::absolute(path).string();
    return "sqlite " + std::to_string(file.st_dev) + " " + std::to_string(file.st_ino);
}

std::unique_ptr<Backend> MakeSqliteBackend(const std::string& path)
{
    return std::make_unique<SqliteBackend>(path);
}

} // namespace Tamrivo
