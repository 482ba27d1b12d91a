#include "host/database/schema.h"

#include "core/text.h"
#include "host/database/database.h"
#include "host/database/execute.h"
#include "host/database/transaction.h"

#include <algorithm>
#include <string>
#include <vector>

namespace Tamrivo
{

namespace
{

// TagKey and NameKey hold the folded, right-trimmed tag or name by which an object is found.
constexpr std::string_view Version1[] = {
    "CREATE TABLE SchemaVersion (Version INTEGER NOT NULL)",
    "INSERT INTO SchemaVersion (Version) VALUES (0)",

    "CREATE TABLE LastNumber (Number INTEGER NOT NULL)",
    "INSERT INTO LastNumber (Number) VALUES (1)",

    R"(CREATE TABLE Project (
        ProjectID INTEGER NOT NULL PRIMARY KEY,
        Name TEXT NOT NULL,
        NameKey TEXT NOT NULL UNIQUE))",
    "INSERT INTO Project (ProjectID, Name, NameKey) VALUES (1, 'Default', 'default')",

    R"(CREATE TABLE Locus (
        LocusID INTEGER NOT NULL PRIMARY KEY,
        Revision INTEGER NOT NULL,
        LocusTag TEXT NOT NULL,
        TagKey TEXT NOT NULL,
        IsCurrent INTEGER NOT NULL,
        DateLastModified BIGINT NOT NULL, -- Seconds since 1970, UTC.
        LocusName TEXT NOT NULL,
        ProjectID INTEGER NOT NULL,
        ProjectName TEXT NOT NULL,
        DyeIndex INTEGER NOT NULL,
        FragStart INTEGER NOT NULL,
        FragEnd INTEGER NOT NULL,
        RepeatLength INTEGER NOT NULL,
        RepeatUnitSequence TEXT NOT NULL,
        ShortestAlleleSize INTEGER NOT NULL,
        RepeatsInShortestAllele TEXT NOT NULL,
        AlleleNamingConventionTypeID INTEGER NOT NULL,
        StartAtAlphanumeric TEXT NOT NULL,
        StartAtNumeric INTEGER NOT NULL,
        PrimerSet TEXT NOT NULL,
        GenBank TEXT NOT NULL,
        PrimerLabelTypeID INTEGER NOT NULL,
        FwdPrimer TEXT NOT NULL,
        RevPrimer TEXT NOT NULL,
        ConfInt DOUBLE PRECISION NOT NULL,
        SystemConfInt DOUBLE PRECISION NOT NULL,
        UserSpecifiedConfInt INTEGER NOT NULL,
        SearchForStutter INTEGER NOT NULL,
        DetShortStutter INTEGER NOT NULL,
        DetLongStutter INTEGER NOT NULL,
        StutterWidth INTEGER NOT NULL,
        RelStutter INTEGER NOT NULL,
        ApparentSizeIncludesA INTEGER NOT NULL,
        DetectA INTEGER NOT NULL,
        UseA INTEGER NOT NULL,
        DetectSpuriousPeaks INTEGER NOT NULL,
        MaxSpurHeight INTEGER NOT NULL,
        Ploidy INTEGER NOT NULL))",
    "CREATE UNIQUE INDEX LocusByTag ON Locus (TagKey) WHERE TagKey <> ''",

    R"(CREATE TABLE Allele (
        LocusID INTEGER NOT NULL REFERENCES Locus,
        Position INTEGER NOT NULL,
        AlleleReal1 DOUBLE PRECISION NOT NULL,
        AlleleReal2 DOUBLE PRECISION NOT NULL,
        AlleleReal3 DOUBLE PRECISION NOT NULL,
        AlleleReal4 DOUBLE PRECISION NOT NULL,
        AlleleReal5 DOUBLE PRECISION NOT NULL,
        AlleleText1 TEXT NOT NULL,
        AlleleText2 TEXT NOT NULL,
        AlleleText3 TEXT NOT NULL,
        AlleleInt1 INTEGER NOT NULL,
        AlleleInt2 INTEGER NOT NULL,
        AlleleInt3 INTEGER NOT NULL,
        PRIMARY KEY (LocusID, Position)))",

    R"(CREATE TABLE AnalysisParameter (
        ParameterID INTEGER NOT NULL PRIMARY KEY,
        Revision INTEGER NOT NULL,
        Name TEXT NOT NULL,
        NameKey TEXT NOT NULL UNIQUE,
        LocusTagListCount INTEGER NOT NULL))",

    // A tag stays in the list of a parameter after its locus was deleted.
    R"(CREATE TABLE AnalysisParameterTag (
        ParameterID INTEGER NOT NULL REFERENCES AnalysisParameter,
        LocusTagID INTEGER NOT NULL,
        Position INTEGER NOT NULL,
        PRIMARY KEY (ParameterID, LocusTagID)))",
};

// The dyes of the lab. Before, every store had these four.
constexpr std::string_view Version2[] = {
    R"(CREATE TABLE Dye (
        Position INTEGER NOT NULL PRIMARY KEY, -- Locus.DyeIndex
        Color TEXT NOT NULL,
        Name TEXT NOT NULL))",
    "INSERT INTO Dye (Position, Color, Name) VALUES (0, 'blue', '')",
    "INSERT INTO Dye (Position, Color, Name) VALUES (1, 'green', '')",
    "INSERT INTO Dye (Position, Color, Name) VALUES (2, 'yellow', '')",
    "INSERT INTO Dye (Position, Color, Name) VALUES (3, 'red', '')",
};

// The history has a record for each change of an object, and is only ever added to. The records of
// an object are numbered by its revisions. Seals go over records that were not sealed yet, whose
// numbers wait in Unsealed.
constexpr std::string_view Version3[] = {
    R"(CREATE TABLE History (
        Number SERIAL KEY,
        Kind TEXT NOT NULL,
        ObjectNumber INTEGER NOT NULL,
        Revision INTEGER NOT NULL,
        WrittenAt BIGINT NOT NULL, -- Milliseconds since 1970, UTC.
        Who TEXT NOT NULL,
        ServerUser TEXT NOT NULL,
        Program TEXT NOT NULL,
        Machine TEXT NOT NULL,
        Operation TEXT NOT NULL,
        Name TEXT NOT NULL,
        NameKey TEXT NOT NULL,
        Reason TEXT NOT NULL,
        Content TEXT NOT NULL,
        Digest TEXT NOT NULL,
        UNIQUE (Kind, ObjectNumber, Revision)))",
    "CREATE INDEX HistoryByName ON History (NameKey, Kind)",

    R"(CREATE TABLE Seal (
        Number INTEGER NOT NULL PRIMARY KEY,
        WrittenAt BIGINT NOT NULL, -- Milliseconds since 1970, UTC.
        Records TEXT NOT NULL, -- A line each: number, blank, digest.
        Digest TEXT NOT NULL))",
    "CREATE TABLE Unsealed (Number BIGINT NOT NULL PRIMARY KEY)",
    R"(--sqlite
    CREATE TRIGGER HistoryToSeal AFTER INSERT ON History
        BEGIN INSERT INTO Unsealed (Number) VALUES (NEW.Number); END)",
    // With the rights of the owner: who may add to the history need not be let into the table.
    R"(--postgresql
    CREATE FUNCTION NoteUnsealed() RETURNS trigger LANGUAGE plpgsql
        SECURITY DEFINER SET search_path FROM CURRENT AS
        'BEGIN INSERT INTO Unsealed (Number) VALUES (NEW.Number); RETURN NULL; END')",
    R"(--postgresql
    CREATE TRIGGER HistoryToSeal AFTER INSERT ON History
        FOR EACH ROW EXECUTE FUNCTION NoteUnsealed())",

    "CREATE TABLE Setting (Name TEXT NOT NULL PRIMARY KEY, Value TEXT NOT NULL)",

    // A row that everybody counts up would make everybody wait.
    R"(--postgresql
    CREATE SEQUENCE ObjectNumber AS INTEGER)",
    R"(--postgresql
    SELECT setval('ObjectNumber', (SELECT Number FROM LastNumber)))",
};

// By what a store is known again, wherever it is.
constexpr std::string_view Version4[] = {
    R"(--sqlite
    INSERT INTO Setting (Name, Value) VALUES ('identity', lower(hex(randomblob(16)))))",
    R"(--postgresql
    INSERT INTO Setting (Name, Value)
        VALUES ('identity', replace(CAST(gen_random_uuid() AS TEXT), '-', '')))",
};

constexpr SchemaStep Steps[] = {Version1, Version2, Version3, Version4};

bool IsFor(const Backend& backend, std::string_view statement)
{
    return !statement.starts_with("--") || statement.substr(2).starts_with(backend.Dialect());
}

/// The statement with what the database calls a "SERIAL KEY", a column of numbers that it gives.
std::string InDialectOf(const Backend& backend, std::string_view statement)
{
    constexpr std::string_view serialKey = "SERIAL KEY";
    std::string spelled(statement);
    if (const auto place = spelled.find(serialKey); place != std::string::npos)
        spelled.replace(place, serialKey.size(), backend.SerialKey());
    return spelled;
}

/// The version of the tables, 0 for none at all.
std::size_t StoredVersion(const Database& database, soci::session& session)
{
    std::string name;
    bool empty = true;
    bool versioned = false;
    {
        soci::statement names = (session.prepare_table_names(), soci::into(name));
        for (names.execute(); names.fetch();)
        {
            empty = false;
            versioned = versioned || EqualNoCase(name, "SchemaVersion");
        }
    }
    if (empty)
        return 0;
    if (!versioned)
        throw Failure(
            StoreError::NotAStore, "Store",
            "Nothing was opened: \"" + database.Name() +
                "\" is a database of another program. Choose another place for the store");
    int version = 0;
    Execute(session, "SELECT Version FROM SchemaVersion", soci::into(version));
    return static_cast<std::size_t>(version);
}

/// Raises `StoreError::ReadOnly` when the tables can't be brought from one version to another.
void RequireMayChange(Database& database, std::size_t from, std::size_t to)
{
    if (!database.IsReadOnly() && database.MayChangeSchema())
        return;
    const bool isOnServer = !database.ServerUser().empty();
    throw Failure(StoreError::ReadOnly, "Store",
                  "Nothing was opened: the store \"" + database.Name() + "\" has " +
                      (from == 0 ? "no tables yet" : "tables of version " + std::to_string(from)) +
                      (isOnServer ? ". Its keeper has to open it first with this program"
                                  : " and is read-only. Make it writable") +
                      ", so that they can be " +
                      (from == 0 ? "made" : "brought to version " + std::to_string(to)));
}

} // namespace

const std::span<const SchemaStep> SchemaSteps = Steps;

void MigrateSchema(Database& database, soci::session& session, std::span<const SchemaStep> steps,
                   const std::function<void(Database&)>& complete)
{
    const std::size_t version = StoredVersion(database, session);
    if (version > steps.size())
        throw Failure(StoreError::NewerVersion, "Store",
                      "Nothing was opened: the store \"" + database.Name() +
                          "\" was written by a newer version of this program (its tables are of "
                          "version " +
                          std::to_string(version) + ", this program knows them up to " +
                          std::to_string(steps.size()) + "). Open it with the newer program");
    if (version == steps.size())
        return;
    RequireMayChange(database, version, steps.size());
    Transaction transaction(database);
    database.ReserveSchema();
    // Another program may have done it while this one waited for its turn.
    for (std::size_t step = StoredVersion(database, session); step < steps.size(); ++step)
    {
        for (const std::string_view statement : steps[step])
        {
            if (IsFor(database.Backend(), statement))
                Execute(session, InDialectOf(database.Backend(), statement));
        }
        Execute(session, "UPDATE SchemaVersion SET Version = " + std::to_string(step + 1));
    }
    complete(database);
    transaction.Commit();
}

} // namespace Tamrivo
