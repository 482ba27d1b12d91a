#pragma once

#include <string_view>

namespace Tamrivo::Bench
{

/// Something that is measured against a bound. `Measure` gives the figure, which is in order when
/// it is at most the bound.
struct Figure
{
    std::string_view Name; ///< By which it is run alone.
    std::string_view What;
    double Bound;
    std::string_view Unit; ///< Empty: a ratio of two times.
    double (*Measure)();
};

double QueryOfLoci();
double QueryOfLociByName();
double SaveOfLocus();
double LookupOfTag();
double MemoryOfLocus();
double AlleleGeneration();

double ReadingOfAlleles();

double SaveInLongHistory();
double HistoryOfLocus();

double OneWriterOnServer();
double TwelveWritersOnServer();
double TwelveWritersOverOne();
double QueryOnServer();
double AllelesOnServer();

double ImportOfPanels();
double ImportOfKitTable();
double ReadingOfPanelTable();
double ReadingOfKitTable();
double ReadingOfPanelsBins();
double ReadingOfKitFile();

double ReadingOfLibrary();
double SearchAgainstScan();
double SearchMilliseconds();
double CheckOfLoci();
double CheckByLoci();
double FitOfLoci();

double SelectorInitialize();
double SelectorSort();
double SelectorAddAll();
double SelectorRemoveAll();
double SelectorSave();
double SelectorMove();

double LoadAndUpdate();
double KeyInTag();
double KeyInTagByLoci();
double GenerationClick();
double GenerationByRows();

double LibraryInView();
double MemoryOfWindow();
double ChoosingInWindow();
double ScrollingInWindow();
double FirstPaint();
double WindowSort();
double WindowMove();

/// All figures, in the order in which they are printed.
inline constexpr Figure Figures[] = {
    {"query", "CurrentLoci of 100,000 loci / bare scan of the same columns", 2, "", QueryOfLoci},
    {"query_by_name", "CurrentLoci of 100,000 loci by name / bare scan", 2, "", QueryOfLociByName},
    {"save", "Save of a locus with 30 alleles, with history / bare transaction", 1.6, "",
     SaveOfLocus},
    {"lookup", "Looking up a tag, 100,000 loci / 100 loci", 2, "", LookupOfTag},
    {"memory", "Memory of a listed locus without alleles", 1024, "bytes", MemoryOfLocus},
    {"generate", "Generating the widest allele list", 2, "ms", AlleleGeneration},
    {"alleles", "Reading all alleles of 4,000 loci with 25 each / a bare scan", 2, "",
     ReadingOfAlleles},
    {"history_save", "Save in a history of 1,000,000 records / of 1,000", 1.1, "",
     SaveInLongHistory},
    {"history_tag", "History of a locus in 1,000,000 records / in 1,000", 1.5, "", HistoryOfLocus},
    {"import", "Import of 100,000 alleles / bare inserts", 3, "", ImportOfPanels},
    {"import_kit", "Import of a kit table / a panel table of the same loci", 1.5, "",
     ImportOfKitTable},
    {"read_panel_table", "Reading a panel table / splitting it into strings", 4, "",
     ReadingOfPanelTable},
    {"read_kit_table", "Reading a kit table / splitting it into strings", 4, "", ReadingOfKitTable},
    {"read_panels_bins", "Reading panels and bins files / splitting them", 4, "",
     ReadingOfPanelsBins},
    {"read_osiris", "Reading a kit file of OSIRIS / the parse of its XML", 4, "", ReadingOfKitFile},
    {"library", "Reading the library of 100,000 loci / CurrentLoci", 1, "", ReadingOfLibrary},
    {"search", "A search of two words and two terms, 100,000 loci / a scan", 3, "",
     SearchAgainstScan},
    {"search_time", "The same", 30, "ms", SearchMilliseconds},
    {"check", "Checking 100,000 loci with 15 alleles each / reading them", 3, "", CheckOfLoci},
    {"check_by_loci", "Checking 10,000 to 100,000 loci / n log n", 1, "", CheckByLoci},
    {"fit", "Fitting 1,000 loci with 1,000 sizes each / sorting the sizes", 10, "", FitOfLoci},
    {"selector_open", "Selector over 100,000 loci / their query by name", 2, "",
     SelectorInitialize},
    {"selector_sort", "Sorting the grid, 1,000 to 100,000 loci / n log n", 1, "", SelectorSort},
    {"selector_add_all", "Adding all rows / n log n", 1, "", SelectorAddAll},
    {"selector_remove_all", "Removing all rows / n log n", 1, "", SelectorRemoveAll},
    {"selector_save", "Saving the selection / n log n", 1, "", SelectorSave},
    {"selector_move", "Moving one row of 100,000", 1, "ms", SelectorMove},
    {"editor_load", "Opening a locus in the editor and storing its fields", 20, "us",
     LoadAndUpdate},
    {"editor_key", "A key in the tag field, 100,000 current loci", 5, "us", KeyInTag},
    {"editor_key_by_loci", "A key in the tag field, 100,000 loci / 100 loci", 1.5, "",
     KeyInTagByLoci},
    {"editor_generate", "Generating the widest list in the editor", 2, "ms", GenerationClick},
    {"editor_generate_by_rows", "A row of 1,000 generated / a row of 250", 1.5, "",
     GenerationByRows},
    {"window", "The window with its table of 100,000 loci in view / reading them", 1.3, "",
     LibraryInView},
    {"window_memory", "Memory of the window with 100,000 loci / of store and library", 2, "",
     MemoryOfWindow},
    {"window_choose", "Choosing one of 100,000 loci, all their lanes in view", 50, "ms",
     ChoosingInWindow},
    {"window_scroll", "Scrolling the table of 100,000 loci", 16, "ms", ScrollingInWindow},
    {"first_paint", "First paint of the selector, 100,000 loci / its opening", 1.3, "", FirstPaint},
    {"window_sort", "Sorting 100,000 rows in the window / without one", 1.3, "", WindowSort},
    {"window_move", "Moving one row of 100,000 in the window", 16, "ms", WindowMove},
    {"server_one", "Bare saves a second on a server / the store's, one writer", 1 / 0.6, "",
     OneWriterOnServer},
    {"server_twelve", "The same, twelve writers", 1 / 0.5, "", TwelveWritersOnServer},
    {"server_growth", "From one to twelve writers, bare / the store", 1 / 0.7, "",
     TwelveWritersOverOne},
    {"server_query", "CurrentLoci of 100,000 loci on a server / bare query", 2, "", QueryOnServer},
    {"server_alleles", "Reading all alleles of 4,000 loci with 25 each on a server / bare query", 2,
     "", AllelesOnServer},
};

} // namespace Tamrivo::Bench
