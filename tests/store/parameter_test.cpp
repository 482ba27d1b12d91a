#include "host/store/parameter_store.h"
#include "tests/store/store_fixture.h"

#include <gmock/gmock.h>

namespace Tamrivo::Testing
{
namespace
{

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ParameterTest : public StoreTest
{
protected:
    std::int32_t Add(StoredAnalysisParameter& parameter, const std::string& tag)
    {
        const auto entry = m_parameters.NewEntry();
        entry->SetTagName(tag);
        const std::int32_t result = entry->Load();
        if (result == LoadResult::Loaded)
            parameter.FragAnalysisParam().LocusTagList(0).Add(entry);
        return result;
    }

    static std::vector<std::int32_t> Tags(StoredAnalysisParameter& parameter)
    {
        std::vector<std::int32_t> tags;
        for (const auto& entry : parameter.FragAnalysisParam().LocusTagList(0).Entries())
            tags.push_back(entry->TagID(0));
        return tags;
    }

    Store m_store{OnServer() ? Address() : Path()};
    ParameterStore m_parameters{m_store};
};

TEST_F(ParameterTest, KeepsTagsByNumberInTheirOrder)
{
    const std::int32_t a = Save(m_store, "A")->LocusTagID();
    const std::int32_t b = Save(m_store, "B")->LocusTagID();
    const auto parameter = m_parameters.Create("Run 1", TagLists::OneEmpty);
    for (const char* tag : {"b ", "A", "B"})
        EXPECT_EQ(Add(*parameter, tag), LoadResult::Loaded);
    EXPECT_EQ(Add(*parameter, "C"), LoadResult::NoSuchTag);
    EXPECT_THAT(Tags(*m_parameters.Open("run 1")), IsEmpty());
    m_parameters.Save(*parameter);
    EXPECT_THAT(Tags(*m_parameters.Open("RUN 1 ")), ElementsAre(b, a)) << "each tag once";

    const auto renamed = m_store.FindLocus("B");
    renamed->SetLocusTag("New");
    m_store.Manager().Save(*renamed, true);
    m_store.DeleteLocus("A");
    EXPECT_THAT(Tags(*m_parameters.Open("Run 1")), ElementsAre(b, a));
    EXPECT_THAT(m_parameters.NamesUsing(b), ElementsAre("Run 1"));

    const auto withoutList = m_parameters.Create("Empty", TagLists::None);
    EXPECT_EQ(withoutList->FragAnalysisParam().LocusTagListCount(), 0);
    EXPECT_EQ(FailureOf([&] { withoutList->FragAnalysisParam().LocusTagList(0); }).Number,
              ErrorNumber::InvalidArgument);
    m_parameters.Save(*withoutList);
}

TEST_F(ParameterTest, AreNamedCopiedAndDeleted)
{
    const auto first = m_parameters.Create("b", TagLists::OneEmpty);
    Save(m_store, "A");
    Add(*first, "A");
    m_parameters.Save(*first);
    m_parameters.Duplicate("B", "C");
    m_parameters.Rename("b", "D");
    EXPECT_THAT(m_parameters.Names(), ElementsAre("C", "D"));
    EXPECT_EQ(Tags(*m_parameters.Open("c")), Tags(*first));
    EXPECT_EQ(FailureOf([&] { m_parameters.Save(*first); }).Number, StoreError::Conflict);

    EXPECT_EQ(FailureOf([&] { m_parameters.Rename("C", "d "); }).Number, StoreError::NameTaken);
    EXPECT_EQ(FailureOf([&] { m_parameters.Create("c", TagLists::None); }).Number,
              StoreError::NameTaken);
    EXPECT_EQ(FailureOf([&] { m_parameters.Delete("b"); }).Number, StoreError::NotFound);
    EXPECT_EQ(FailureOf([&] { m_parameters.Create(" ", TagLists::None); }).Number,
              ErrorNumber::InvalidArgument);
    m_parameters.Delete("C");
    EXPECT_THAT(m_parameters.Names(), ElementsAre("D"));
    EXPECT_EQ(m_parameters.Find("C"), nullptr);
}

TEST_F(ParameterTest, LoadTellsWhatHinderedIt)
{
    Save(m_store, "A");
    const auto parameter = m_parameters.Create("P", TagLists::OneEmpty);
    std::filesystem::rename(Path(), Path("elsewhere"));
    EXPECT_EQ(Add(*parameter, "A"), LoadResult::NoConnection);
    std::filesystem::rename(Path("elsewhere"), Path());
    EXPECT_EQ(Add(*parameter, "A"), LoadResult::Loaded);
}

} // namespace
} // namespace Tamrivo::Testing
