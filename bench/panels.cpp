#include "bench/bare_sqlite.h"
#include "bench/figures.h"
#include "bench/panel_samples.h"
#include "bench/sample_store.h"
#include "bench/timing.h"
#include "host/database/columns.h"
#include "host/panels/import.h"
#include "host/panels/panel_files.h"
#include "host/store/allele_row.h"
#include "host/store/bulk_alleles.h"
#include "host/store/locus_row.h"

namespace Tamrivo::Bench
{

namespace
{

void Step(const BareStatement& statement, const BareConnection& connection)
{
    Require(sqlite3_step(statement.get()) == SQLITE_DONE, connection);
    sqlite3_reset(statement.get());
}

/// Reads each value as the number or text that it is.
void BareScanOfAlleles(const BareConnection& connection)
{
    AlleleRow row;
    const BareStatement select = Prepare(connection, "SELECT " + ColumnNames(row) +
                                                         " FROM Allele ORDER BY LocusID, Position");
    long long sum = 0;
    while (sqlite3_step(select.get()) == SQLITE_ROW)
    {
        int column = 0;
        row.VisitColumns([&](std::string_view, const auto& value) {
            using Value = std::decay_t<decltype(value)>;
            if constexpr (std::is_same_v<Value, std::string>)
                sum += *sqlite3_column_text(select.get(), column++);
            else if constexpr (std::is_same_v<Value, double>)
                sum += static_cast<long long>(sqlite3_column_double(select.get(), column++));
            else
                sum += sqlite3_column_int(select.get(), column++);
        });
    }
    Keep(sum);
}

void Import(const std::string& text, Store& store)
{
    const PanelFile file = PanelFileOf("table", text);
    const PanelReading reading = ReadPanels({&file, 1});
    CarryOutImport(PlanImport(reading.Markers, {}, store), store);
}

double ImportSeconds(const std::string& text)
{
    TemporaryStore store;
    return SecondsOf([&] { Import(text, store.Get()); });
}

/// Inserts as many rows, with every column bound, in one transaction.
double InsertSeconds()
{
    TemporaryStore store;
    const BareConnection connection = Connect(store.Path());
    std::string names;
    std::string values;
    LocusRow row;
    row.VisitColumns([&](std::string_view name, const auto&) {
        names.append(names.empty() ? "" : ", ").append(name);
        // A locus is one row in 25, so that binding its columns counts for little.
        values.append(values.empty() ? "" : ", ")
            .append(name == "LocusID" || name == "LocusTag" || name == "TagKey" ? "?1" : "'0'");
    });
    const BareStatement insertLocus =
        Prepare(connection, "INSERT INTO Locus (" + names + ") VALUES (" + values + ")");
    const BareStatement insertAllele =
        Prepare(connection, "INSERT INTO Allele VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)");
    return SecondsOf([&] {
        Execute(connection, "BEGIN IMMEDIATE");
        for (int marker = 1; marker <= SampleMarkers; ++marker)
        {
            sqlite3_bind_int(insertLocus.get(), 1, marker);
            Step(insertLocus, connection);
            for (int allele = 1; allele <= SampleAlleles; ++allele)
            {
                const std::string name = std::to_string(allele);
                sqlite3_bind_int(insertAllele.get(), 1, marker);
                sqlite3_bind_int(insertAllele.get(), 2, allele);
                for (int column = 3; column <= 7; ++column)
                    sqlite3_bind_double(insertAllele.get(), column, 80.25 + allele);
                for (int column = 8; column <= 10; ++column)
                    sqlite3_bind_text(insertAllele.get(), column, name.c_str(), -1, SQLITE_STATIC);
                for (int column = 11; column <= 13; ++column)
                    sqlite3_bind_int(insertAllele.get(), column, 0);
                Step(insertAllele, connection);
            }
        }
        Execute(connection, "COMMIT");
    });
}

} // namespace

double ReadingOfAlleles()
{
    TemporaryStore store;
    Import(SamplePanelTable(), store.Get());
    const auto loci = CurrentLoci(store.Get().Manager(), "");
    const BareConnection connection = Connect(store.Path());
    return RatioOf(
        7, [&] { ForEachWithAlleles(loci->Members(), [](Locus&, std::size_t) {}); },
        [&] { BareScanOfAlleles(connection); });
}

double ImportOfPanels()
{
    const std::string text = SamplePanelTable();
    double import = std::numeric_limits<double>::max();
    double inserts = import;
    for (int turn = 0; turn < 5; ++turn)
    {
        import = std::min(import, ImportSeconds(text));
        inserts = std::min(inserts, InsertSeconds());
    }
    return import / inserts;
}

double ImportOfKitTable()
{
    const std::string kit = SampleKitTable();
    const std::string panel = SamplePanelTable();
    double kitSeconds = std::numeric_limits<double>::max();
    double panelSeconds = kitSeconds;
    for (int turn = 0; turn < 5; ++turn)
    {
        kitSeconds = std::min(kitSeconds, ImportSeconds(kit));
        panelSeconds = std::min(panelSeconds, ImportSeconds(panel));
    }
    return kitSeconds / panelSeconds;
}

} // namespace Tamrivo::Bench
