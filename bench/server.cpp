#include "bench/bare_postgresql.h"
#include "bench/figures.h"
#include "bench/sample_store.h"
#include "bench/timing.h"
#include "contracts/allele.h"
#include "contracts/object_manager.h"
#include "host/database/columns.h"
#include "host/store/allele_row.h"
#include "host/store/bulk_alleles.h"
#include "host/store/locus_row.h"
#include "tests/server/scratch_server.h"

#include <atomic>
#include <cstdlib>
#include <future>
#include <vector>

namespace Tamrivo::Bench
{

namespace
{

using Testing::ScratchServer;

constexpr int Alleles = 25;
constexpr int Twelve = 12;

/// Saves of a second, bare and through the store.
struct Rates
{
    double Bare = 0;
    double OfStore = 0;
};

/// A store on the scratch server with a locus for each writer, numbers 2 to 13.
const std::string& AddressOfWriters()
{
    static const std::string address = [] {
        std::string made = ScratchServer::Get().NewDatabase();
        Store store(made);
        for (int writer = 0; writer < Twelve; ++writer)
        {
            const auto locus = SampleLocus(store.Manager(), writer);
            for (int number = 0; number < Alleles; ++number)
            {
                auto allele = CreateObject<Allele>(store.Manager(), "Allele");
                allele->AlleleText1 = std::to_string(number);
                allele->AlleleReal1 = 100.25 + 4 * number;
                locus->Alleles().Add(allele);
            }
            store.Manager().Save(*locus, true);
        }
        return made;
    }();
    return address;
}

/// The rows of locus and alleles without history, a round trip a statement.
class BareWriter
{
public:
    explicit BareWriter(int writer)
        : m_connection(ConnectToServer(AddressOfWriters())), m_number(std::to_string(2 + writer))
    {
        LocusRow row;
        std::string assignments;
        row.VisitColumns([&](std::string_view name, const auto&) {
            if (name != "Revision")
                assignments.append(", ").append(name).append(" = ").append(name);
        });
        Execute(m_connection, "PREPARE Change AS UPDATE Locus SET Revision = Revision + 1" +
                                  assignments + " WHERE LocusID = " + m_number);
        Execute(m_connection, "PREPARE Empty AS DELETE FROM Allele WHERE LocusID = " + m_number);
    }

    void Save()
    {
        Execute(m_connection, "BEGIN");
        Execute(m_connection, "EXECUTE Change");
        Execute(m_connection, "EXECUTE Empty");
        std::string rows;
        m_size += 0.25;
        for (int position = 1; position <= Alleles; ++position)
            rows += (rows.empty() ? "(" : ",(") + m_number + "," + std::to_string(position) + "," +
                    std::to_string(m_size + 4 * position) + ",0,0,0,0,'" +
                    std::to_string(position) + "','','',0,0,0)";
        Execute(m_connection, "INSERT INTO Allele VALUES " + rows);
        Execute(m_connection, "COMMIT");
    }

private:
    BareServerConnection m_connection;
    std::string m_number;
    double m_size = 100;
};

class StoreWriter
{
public:
    explicit StoreWriter(int writer)
        : m_store(AddressOfWriters()), m_locus(m_store.FindLocus(SampleTag(writer)))
    {}

    void Save()
    {
        m_locus->FragEnd = 700 - m_locus->FragEnd;
        for (const auto& allele : m_locus->Alleles().Members())
            As<Allele>(allele)->AlleleReal1 += 0.25;
        m_store.Manager().Save(*m_locus, true);
    }

private:
    Store m_store;
    std::shared_ptr<Locus> m_locus;
};

/// How many saves a second so many writers make, each of its own locus.
template <class Writer>
double RateOf(int writers)
{
    constexpr auto time = std::chrono::milliseconds(1500);
    std::atomic<long long> saves = 0;
    std::vector<std::unique_ptr<Writer>> all;
    for (int writer = 0; writer < writers; ++writer)
        all.push_back(std::make_unique<Writer>(writer));
    std::vector<std::future<void>> done;
    const auto start = std::chrono::steady_clock::now();
    for (const auto& writer : all)
        done.push_back(std::async(std::launch::async, [&] {
            for (; std::chrono::steady_clock::now() < start + time; ++saves)
                writer->Save();
        }));
    for (auto& each : done)
        each.get();
    return static_cast<double>(saves) /
           std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

/// Measured once, in turns.
const Rates& RatesOf(int writers)
{
    static const auto measure = [](int count) {
        Rates best;
        for (int turn = 0; turn < 3; ++turn)
        {
            best.Bare = std::max(best.Bare, RateOf<BareWriter>(count));
            best.OfStore = std::max(best.OfStore, RateOf<StoreWriter>(count));
        }
        return best;
    };
    static const Rates one = measure(1);
    static const Rates twelve = measure(Twelve);
    return writers == 1 ? one : twelve;
}

double BareOverStore(int writers)
{
    const Rates& rates = RatesOf(writers);
    return rates.Bare / rates.OfStore;
}

void Fill(Store& store, int loci, int alleles)
{
    store.Together([&] {
        for (int number = 0; number < loci; ++number)
        {
            const auto locus = SampleLocus(store.Manager(), number);
            for (int allele = 0; allele < alleles; ++allele)
                locus->Alleles().Add(CreateObject<Allele>(store.Manager(), "Allele"));
            store.Manager().Save(*locus, true);
        }
    });
}

/// Reads rows and looks at each value as the number or text that it is.
template <class Row>
void BareRead(const BareServerConnection& connection, const std::string& from)
{
    Row row;
    const BareServerResult result = Execute(connection, "SELECT " + ColumnNames(row) + from);
    long long sum = 0;
    for (int at = 0; at < PQntuples(result.get()); ++at)
    {
        int column = 0;
        row.VisitColumns([&](std::string_view, const auto& value) {
            const char* text = PQgetvalue(result.get(), at, column++);
            using Value = std::decay_t<decltype(value)>;
            if constexpr (std::is_same_v<Value, std::string>)
                sum += *text;
            else if constexpr (std::is_same_v<Value, double>)
                sum += static_cast<long long>(std::strtod(text, nullptr));
            else
                sum += std::strtoll(text, nullptr, 10);
        });
    }
    Keep(sum);
}

} // namespace

double OneWriterOnServer()
{
    return BareOverStore(1);
}

double TwelveWritersOnServer()
{
    return BareOverStore(Twelve);
}

double TwelveWritersOverOne()
{
    const Rates& one = RatesOf(1);
    const Rates& twelve = RatesOf(Twelve);
    return (twelve.Bare / one.Bare) / (twelve.OfStore / one.OfStore);
}

double QueryOnServer()
{
    Store store(ScratchServer::Get().NewDatabase());
    Fill(store, ManyLoci, 0);
    const BareServerConnection connection = ConnectToServer(store.Name());
    return RatioOf(
        3, [&] { return CurrentLoci(store.Manager(), ""); },
        [&] { BareRead<LocusRow>(connection, " FROM Locus WHERE IsCurrent = 1"); });
}

double AllelesOnServer()
{
    constexpr int count = 4000;
    Store store(ScratchServer::Get().NewDatabase());
    Fill(store, count, Alleles);
    const BareServerConnection connection = ConnectToServer(store.Name());
    const auto loci = CurrentLoci(store.Manager(), "");
    return RatioOf(
        3, [&] { ForEachWithAlleles(loci->Members(), [](Locus&, std::size_t) {}); },
        [&] { BareRead<AlleleRow>(connection, " FROM Allele ORDER BY LocusID, Position"); });
}

} // namespace Tamrivo::Bench
