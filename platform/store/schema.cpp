#include "platform/store/schema.h"

#include "core/text.h"
#include "platform/store/database.h"
#include "platform/store/transaction.h"

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

constexpr SchemaStep Steps[] = {Version1};

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
    session << "SELECT Version FROM SchemaVersion", soci::into(version);
    return static_cast<std::size_t>(version);
}

} // namespace

const std::span<const SchemaStep> SchemaSteps = Steps;

void MigrateSchema(Database& database, soci::session& session, std::span<const SchemaStep> steps)
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
    if (database.IsReadOnly())
        throw Failure(
            StoreError::ReadOnly, "Store",
            "Nothing was opened: the store \"" + database.Name() + "\" has " +
                (version == 0 ? "no tables yet" : "tables of version " + std::to_string(version)) +
                " and is read-only. Make it writable, so that they can be " +
                (version == 0 ? "made" : "brought to version " + std::to_string(steps.size())));

    Transaction transaction(database);
    // Another program may have done it while this one waited for its turn.
    for (std::size_t step = StoredVersion(database, session); step < steps.size(); ++step)
    {
        for (const std::string_view statement : steps[step])
            session << statement;
        session << "UPDATE SchemaVersion SET Version = " << step + 1;
    }
    transaction.Commit();
}

} // namespace Tamrivo
