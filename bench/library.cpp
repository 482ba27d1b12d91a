#include "host/library/library.h"

#include "bench/figures.h"
#include "bench/sample_store.h"
#include "bench/timing.h"
#include "host/library/search.h"

namespace Tamrivo::Bench
{

namespace
{

Library& LibraryOfLoci()
{
    static Library library(StoreOfLoci(ManyLoci).Get());
    return library;
}

} // namespace

double ReadingOfLibrary()
{
    Store& store = StoreOfLoci(ManyLoci).Get();
    return RatioOf(
        7, [&] { return Library(store); }, [&] { return CurrentLoci(store.Manager(), ""); });
}

double SearchAgainstScan()
{
    Library& library = LibraryOfLoci();
    const FoldedTexts& words = library.Words();
    return RatioOf(
        21, [&] { Keep(Search(library, "99 -locus dye:blue range:100-300").Loci.size()); },
        [&] {
            std::size_t found = 0;
            for (std::size_t position = 0; position < words.Count(); ++position)
                found += words[position].find("99") != std::string_view::npos ? 1 : 0;
            Keep(found);
        });
}

double SearchMilliseconds()
{
    Library& library = LibraryOfLoci();
    library.Words();
    return 1000 * FastestOf(21, [&] {
               Keep(Search(library, "99 -locus dye:blue range:100-300").Loci.size());
           });
}

} // namespace Tamrivo::Bench
