#include "host/store/history.h"

#include "bench/bare_sqlite.h"
#include "bench/figures.h"
#include "bench/sample_store.h"
#include "bench/timing.h"

#include <map>

namespace Tamrivo::Bench
{

namespace
{

constexpr int ManyRecords = 1'000'000;
constexpr int FewRecords = 1'000;
constexpr int RecordsOfLocus = 10;

/// A store with a locus of ten records, and so many of other loci.
TemporaryStore& StoreOfRecords(int count)
{
    static std::map<int, TemporaryStore> stores;
    const auto [found, isNew] = stores.try_emplace(count);
    if (!isNew)
        return found->second;
    Store& store = found->second.Get();
    const auto locus = SampleLocus(store.Manager(), 0);
    for (int save = 0; save < RecordsOfLocus; ++save)
    {
        locus->FragEnd = 300 + save;
        store.Manager().Save(*locus, true);
    }
    const BareConnection connection = Connect(found->second.Path());
    Execute(connection,
            ("WITH RECURSIVE Of(Number) AS (SELECT 0 UNION ALL SELECT Number + 1 FROM Of "
             "WHERE Number + 1 < " +
             std::to_string(count) +
             ") INSERT INTO History (Kind, ObjectNumber, Revision, WrittenAt, Who, ServerUser, "
             "Program, Machine, Operation, Name, NameKey, Reason, Content, Digest) "
             "SELECT 'Locus', 1000 + Number % 1000, 1 + Number / 1000, Number, 'anna', '', "
             "'tamrivo', 'bench', 'changed', 'L' || Number % 1000, 'l' || Number % 1000, '', "
             "'{\"Format\":1}', hex(randomblob(32)) FROM Of; DELETE FROM Unsealed")
                .c_str());
    return found->second;
}

double InManyOverFew(int times, double (*secondsIn)(Store&))
{
    double many = std::numeric_limits<double>::max();
    double few = many;
    for (; times > 0; --times)
    {
        many = std::min(many, secondsIn(StoreOfRecords(ManyRecords).Get()));
        few = std::min(few, secondsIn(StoreOfRecords(FewRecords).Get()));
    }
    return many / few;
}

} // namespace

double SaveInLongHistory()
{
    return InManyOverFew(60, [](Store& store) {
        const auto locus = store.FindLocus(SampleTag(0));
        locus->FragEnd = 700 - locus->FragEnd;
        return SecondsOf([&] { store.Manager().Save(*locus, true); });
    });
}

double HistoryOfLocus()
{
    return InManyOverFew(200, [](Store& store) {
        return SecondsOf([&] {
            HistoryFilter filter;
            filter.Kind = HistoryKind::Locus;
            filter.Name = SampleTag(0);
            long long sum = 0;
            History(store.SharedDatabase()).ForEach(filter, [&](const HistoryRecord& record) {
                sum += record.Number;
            });
            Keep(sum);
        });
    });
}

} // namespace Tamrivo::Bench
