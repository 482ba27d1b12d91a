#include "host/library/changes.h"
#include "host/library/library.h"
#include "host/library/search.h"
#include "host/store/parameter_store.h"
#include "tests/store/store_fixture.h"

#include <gmock/gmock.h>

namespace Tamrivo::Testing
{

namespace
{

using ::testing::ElementsAre;

class LibraryTest : public StoreTest
{
protected:
    LibraryTest()
    {
        Add("TH01", 2, 69, 118, "H24", "Default", {"6", "9.3", "10"});
        Add("AMEL", 0, 80, 92, "H24", "Default", {"X", "Y"});
        Add("D3S1358", 0, 118, 160, "Ångström 17", "Cold cases", {"15", "16"});
        Add("D2S441", 0, 443, 480, "", "Cold cases", {});
        const auto parameter = ParameterStore(m_store).Create("Casework", TagLists::OneEmpty);
        parameter->FragAnalysisParam().LocusTagList(0).Add(
            std::make_shared<StoredTagEntry>(m_store, m_store.FindLocus("th01")->LocusTagID()));
        ParameterStore(m_store).Save(*parameter);
    }

    void Add(const std::string& tag, int dye, int from, int to, const std::string& panel,
             const std::string& project, const std::vector<std::string>& alleles)
    {
        const auto locus = NewLocus(m_store, tag, alleles);
        locus->LocusName = "Locus of " + tag;
        locus->DyeIndex = dye;
        locus->FragStart = from;
        locus->FragEnd = to;
        locus->RepeatLength = tag == "AMEL" ? 9 : 4;
        locus->PrimerSet = panel;
        locus->ProjectName = m_store.ProjectNamed(project)->Name();
        locus->GenBank = tag == "TH01" ? "D00269" : "";
        if (!alleles.empty())
            As<Allele>(locus->Alleles().Item(1))->AlleleInt2 = 1;
        m_store.Manager().Save(*locus, true);
    }

    /// The tags that are found, or the one error.
    std::string Found(const std::string& search)
    {
        const SearchResult result =
            Search(m_library ? *m_library : m_library.emplace(m_store), search);
        std::string text;
        for (const auto position : result.Loci)
            text.append(text.empty() ? "" : " ").append(m_library->Loci()[position].Tag);
        for (const std::string& error : result.Errors)
            text += error;
        return text;
    }

    Store m_store{Path()};
    std::optional<Library> m_library;
};

} // namespace

TEST_F(LibraryTest, HasTheRowsWithTheirCountsAndUses)
{
    const Library library(m_store);
    ASSERT_EQ(library.Loci().size(), 4U);
    const LibraryLocus& th01 = library.Loci()[0];
    EXPECT_EQ(th01.Alleles, 3);
    EXPECT_EQ(th01.VirtualAlleles, 1);
    EXPECT_EQ(th01.UsedBy, 1);
    EXPECT_EQ(library.Loci()[3].Alleles, 0);
    EXPECT_EQ(library.Panels()[th01.Panel].Name, "H24");
    EXPECT_EQ(library.Panels()[th01.Panel].Loci, 2U);
    ASSERT_EQ(library.Parameters().size(), 1U);
    EXPECT_THAT(library.Parameters()[0].Loci, ElementsAre(0U));
}

TEST_F(LibraryTest, FindsWhatMeetsAllWordsAndTerms)
{
    const std::string all = "TH01 AMEL D3S1358 D2S441";
    const struct
    {
        const char* Search;
        std::string Found;
    } rows[] = {
        {"", all},
        {"1358", "D3S1358"},
        {"d0026", "TH01"},
        {"\"cold cases\"", "D3S1358 D2S441"},
        {"ÅNGSTRÖM", "D3S1358"},
        {"dye:BL", "AMEL D3S1358 D2S441"},
        {"-dye:blue", "TH01"},
        {"panel:h2 -amel", "TH01"},
        {"panel:\"ångström 1\"", "D3S1358"},
        {"panel:24", ""},
        {"project:\"cold cases", "D3S1358 D2S441"},
        {"range:92-118", "TH01 AMEL D3S1358"},
        {"range:481", ""},
        {"allele:9", "TH01"},
        {"allele:9.3 dye:yellow", "TH01"},
        {"allele:.3", ""},
        {"-allele:1", "AMEL D2S441"},
        {"repeat:9", "AMEL"},
        {"used:y", "TH01"},
        {"used:no dye:blue", "AMEL D3S1358 D2S441"},
        {"changed:>2020-02-29", all},
        {"changed:<=2020", ""},
        {"changed:2020-02", ""},
        {"problem:", "TH01 AMEL D3S1358"},
        {"problem:no-w dye:yellow", "TH01"},
        {"problem:letters", ""},
        {"-problem:", "D2S441"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(Found(row.Search), row.Found) << row.Search;

    for (const char* unfinished : {"-", "dye:", "-dye:", "range:100-", "range:100-2", "changed:>",
                                   "changed:2026-0", "allele:\"", "used:"})
        EXPECT_EQ(Found(unfinished), all) << unfinished;
}

TEST_F(LibraryTest, NamesTheTermThatIsWrong)
{
    const std::pair<const char*, const char*> rows[] = {
        {"amel color:blue", "\"color:blue\": There is no such term. Terms are dye:, panel:"},
        {"dye:pink", "\"dye:pink\": No dye has such a colour or name; there are blue, green"},
        {"range:a", "\"range:a\": Lengths in nt"},
        {"range:200-100", "\"range:200-100\": The range ends before"},
        {"range:1-2x", "\"range:1-2x\": Lengths in nt"},
        {"problem:wrong", "\"problem:wrong\": No rule has such a name; there are bin-overlap"},
        {"repeat:four", "\"repeat:four\": The length"},
        {"used:maybe", "\"used:maybe\": yes or no"},
        {"changed:>today", "\"changed:>today\": A date"},
        {"changed:2026-02-30", "\"changed:2026-02-30\": There is no such date"},
        {"range:99999999999", "\"range:99999999999\": Lengths in nt"},
    };
    for (const auto& [search, error] : rows)
        EXPECT_THAT(Found(search), ::testing::StartsWith(error)) << search;
}

TEST_F(LibraryTest, ChangesAllOfTheLociOrNone)
{
    DuplicateLocus(m_store, "TH01", TagForCopy(m_store, "TH01 "));
    EXPECT_EQ(TagForCopy(m_store, "TH01"), "TH01 copy 2");
    RenameLocus(m_store, "TH01", "th01");
    EXPECT_EQ(FailureOf([&] { RenameLocus(m_store, "th01", "amel"); }).Number,
              StoreError::NameTaken);
    EXPECT_EQ(FailureOf([&] { RenameLocus(m_store, "th01", " "); }).Number,
              ErrorNumber::InvalidArgument);
    const std::vector<std::string> tags = {"th01", "TH01 copy", "none"};
    EXPECT_EQ(FailureOf([&] { SetDye(m_store, tags, 3); }).Number, StoreError::NotFound);
    EXPECT_EQ(FailureOf([&] { SetProject(m_store, tags, "New"); }).Number, StoreError::NotFound);
    EXPECT_EQ(FailureOf([&] { DeleteLoci(m_store, tags); }).Number, StoreError::NotFound);
    EXPECT_EQ(Found("dye:red"), "");
    EXPECT_EQ(Found("used:yes"), "th01");
    EXPECT_EQ(m_store.FindProject("New"), nullptr);

    const std::span<const std::string> both(tags.data(), 2);
    SetDye(m_store, both, 3);
    SetProject(m_store, both, "New");
    m_library.reset();
    EXPECT_EQ(Found("dye:red project:new allele:9.3"), "th01 TH01 copy");
    DeleteLoci(m_store, both);
    m_library.reset();
    EXPECT_EQ(Found(""), "AMEL D3S1358 D2S441");
}

} // namespace Tamrivo::Testing
