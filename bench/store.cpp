#include "bench/bare_sqlite.h"
#include "bench/figures.h"
#include "bench/memory.h"
#include "bench/sample_store.h"
#include "bench/timing.h"
#include "contracts/allele.h"
#include "contracts/object_manager.h"
#include "host/loci/allele_generation.h"
#include "host/store/locus_row.h"

namespace Tamrivo::Bench
{

namespace
{

constexpr int FewLoci = 100;
constexpr int Alleles = 30;

/// How a bare scan reads a column.
enum class ColumnKind
{
    Integer,
    Real,
    Text,
};

struct Columns
{
    Columns()
    {
        LocusRow row;
        row.VisitColumns([this](std::string_view name, const auto& value) {
            using Value = std::decay_t<decltype(value)>;
            Names.append(Names.empty() ? "" : ", ").append(name);
            Placeholders.append(Placeholders.empty() ? "?" : ", ?");
            Kinds.push_back(std::is_same_v<Value, std::string> ? ColumnKind::Text
                            : std::is_same_v<Value, double>    ? ColumnKind::Real
                                                               : ColumnKind::Integer);
        });
    }

    std::string Names;
    std::string Placeholders;
    std::vector<ColumnKind> Kinds;
};

void BareScan(const BareConnection& connection)
{
    const Columns columns;
    const BareStatement statement =
        Prepare(connection, "SELECT " + columns.Names + " FROM Locus WHERE IsCurrent = 1");
    long long sum = 0;
    while (sqlite3_step(statement.get()) == SQLITE_ROW)
    {
        int column = 0;
        for (const ColumnKind kind : columns.Kinds)
        {
            if (kind == ColumnKind::Integer)
                sum += sqlite3_column_int64(statement.get(), column);
            else if (kind == ColumnKind::Real)
                sum += static_cast<long long>(sqlite3_column_double(statement.get(), column));
            else
                sum += *sqlite3_column_text(statement.get(), column);
            ++column;
        }
    }
    Keep(sum);
}

/// A query whose members can be looked up, against a scan that only reads.
double QueryAgainstScan(std::string_view ordering)
{
    TemporaryStore& store = StoreOfLoci(ManyLoci);
    ObjectManager& manager = store.Get().Manager();
    const BareConnection connection = Connect(store.Path());
    return RatioOf(
        7, [&] { return CurrentLoci(manager, ordering); }, [&] { BareScan(connection); });
}

/// Seconds for looking up some tags of the list, as many for each list, so that the processor's
/// caches help both alike.
double LookupSeconds(int count)
{
    const auto loci = CurrentLoci(StoreOfLoci(count).Get().Manager(), "");
    std::vector<std::string> tags;
    for (int number = 0; number < FewLoci; ++number)
        tags.push_back(SampleTag(number * (count / FewLoci)));
    return FastestOf(200, [&] {
        for (const std::string& tag : tags)
            Keep(reinterpret_cast<long long>(loci->Item(tag).get()));
    });
}

/// "FragStart = FragStart, …": every column written as it is.
std::string AssignmentsOfLocus()
{
    std::string assignments;
    LocusRow row;
    row.VisitColumns([&](std::string_view name, const auto&) {
        assignments.append(assignments.empty() ? "" : ", ").append(name).append(" = ");
        assignments.append(name);
    });
    return assignments;
}

std::shared_ptr<Locus> SavedLocusWithAlleles(ObjectManager& manager)
{
    auto locus = SampleLocus(manager, 0);
    for (int number = 0; number < Alleles; ++number)
    {
        auto allele = CreateObject<Allele>(manager, "Allele");
        allele->AlleleText1 = std::to_string(number);
        allele->AlleleReal1 = 100.25 + 4 * number;
        locus->Alleles().Add(allele);
    }
    manager.Save(*locus, true);
    return locus;
}

} // namespace

double QueryOfLoci()
{
    return QueryAgainstScan("");
}

double QueryOfLociByName()
{
    return QueryAgainstScan("Name");
}

double SaveOfLocus()
{
    TemporaryStore store;
    ObjectManager& manager = store.Get().Manager();
    const auto locus = SavedLocusWithAlleles(manager);

    TemporaryStore copy;
    copy.Get().Manager().Save(*SampleLocus(copy.Get().Manager(), 0), true);
    const BareConnection connection = Connect(copy.Path());
    const BareStatement update = Prepare(connection, "UPDATE Locus SET " + AssignmentsOfLocus() +
                                                         ", Revision = Revision + 1 "
                                                         "WHERE LocusID = 2");
    const BareStatement remove = Prepare(connection, "DELETE FROM Allele WHERE LocusID = 2");
    const BareStatement insert = Prepare(
        connection, "INSERT INTO Allele VALUES (2, ?, 100.25, 0, 0, 0, 0, ?, '', '', 0, 0, 0)");
    const auto run = [&](const BareStatement& statement) {
        Require(sqlite3_step(statement.get()) == SQLITE_DONE, connection);
        sqlite3_reset(statement.get());
    };

    return RatioOf(
        60,
        [&] {
            // What doesn't differ isn't written.
            locus->FragEnd = 700 - locus->FragEnd;
            for (const auto& allele : locus->Alleles().Members())
                As<Allele>(allele)->AlleleReal1 += 0.25;
            manager.Save(*locus, true);
        },
        [&] {
            Execute(connection, "BEGIN IMMEDIATE");
            run(update);
            run(remove);
            for (int number = 1; number <= Alleles; ++number)
            {
                sqlite3_bind_int(insert.get(), 1, number);
                sqlite3_bind_int(insert.get(), 2, number);
                run(insert);
            }
            Execute(connection, "COMMIT");
        });
}

double LookupOfTag()
{
    return LookupSeconds(ManyLoci) / LookupSeconds(FewLoci);
}

double MemoryOfLocus()
{
    ObjectManager& manager = StoreOfLoci(ManyLoci).Get().Manager();
    const std::size_t before = HeapBytes();
    const auto loci = CurrentLoci(manager, "Name");
    return static_cast<double>(HeapBytes() - before) / loci->Count();
}

double AlleleGeneration()
{
    LocusFields locus;
    locus.FragStart = 0;
    locus.ShortestAlleleSize = 0;
    locus.FragEnd = 999;
    locus.RepeatLength = 1;
    locus.AlleleNamingConventionTypeID = AlleleNamingConvention::Alphabetic;
    return 1000 *
           FastestOf(20, [&] { Keep(static_cast<long long>(GenerateAlleleRows(locus).size())); });
}

} // namespace Tamrivo::Bench
