#include "service/service.h"
#include "tests/fakes/fake_host.h"

#include <gtest/gtest.h>

namespace Tamrivo
{

namespace
{

struct DefinedType : ReportContextType
{
    void Define(std::int32_t identifier, const std::string& name, double number,
                IServiceAccess& owner) override
    {
        Text = std::to_string(identifier) + " " + name + " " + std::to_string(number);
        Owner = &owner;
    }
    std::string Text;
    const IServiceAccess* Owner = nullptr;
};

class ServiceHost : public Fakes::FakeHost
{
public:
    std::shared_ptr<ServiceBase> NewServiceBase() override
    {
        Objects.Before("NewServiceBase");
        return std::make_shared<ServiceBase>();
    }
    std::shared_ptr<ReportContextType> NewReportContextType() override
    {
        return std::make_shared<DefinedType>();
    }
};

std::vector<std::string> Keys(const ReportContexts& contexts)
{
    std::vector<std::string> keys;
    for (const auto& [key, locus] : contexts.Entries())
    {
        EXPECT_EQ(locus->LocusTag(), key);
        keys.push_back(key);
    }
    return keys;
}

TEST(Service, OffersItsTypeAnewOnEachRequest)
{
    ServiceHost host;
    Service service(host);
    IServiceAccess& access = service;
    ReportContextTypes types;
    access.Service()->GetReportContextTypes(types);
    access.Service()->GetReportContextTypes(types);
    ASSERT_EQ(types.Count(), 2U);
    for (const auto& type : types)
    {
        const auto& defined = dynamic_cast<const DefinedType&>(*type);
        EXPECT_EQ(defined.Text, "1010 Locus 60.000000");
        EXPECT_EQ(defined.Owner, &access);
    }
}

TEST(Service, GivesTheCurrentLociOfTheMoment)
{
    ServiceHost host;
    Service service(host);
    IServiceAccess& access = service;
    const auto contexts = [&](std::int32_t type) {
        ReportContexts found;
        access.Service()->GetReportContexts(type, found);
        return Keys(found);
    };
    EXPECT_TRUE(contexts(1010).empty());
    host.Objects.Requests.clear();
    host.Objects.AddCurrentLocus("TPOX");
    host.Objects.AddCurrentLocus("FGA");
    host.Objects.AddCurrentLocus("FGA ");
    const std::vector<std::string> tags{"TPOX", "FGA", "FGA "};
    EXPECT_EQ(contexts(1010), tags);
    EXPECT_EQ(contexts(0), tags);
    EXPECT_EQ(host.Objects.Requests,
              (std::vector<std::string>(2, "Query CurrentLoci  \"\" 0 true")));
}

TEST(Service, LeavesFailuresToTheFramework)
{
    ServiceHost host;
    Service service(host);
    IServiceAccess& access = service;
    for (const char* tag : {"FGA", "TPOX", "FGA", "vWA"})
        host.Objects.AddCurrentLocus(tag);
    ReportContexts contexts;
    EXPECT_THROW(access.Service()->GetReportContexts(1010, contexts), Failure);
    EXPECT_EQ(Keys(contexts), (std::vector<std::string>{"FGA", "TPOX"}));
    EXPECT_TRUE(host.Utility.Reports.empty());

    host.Objects.Before = [](const std::string&) { throw Failure(7, "store", "gone"); };
    EXPECT_THROW(access.Service()->GetReportContexts(1010, contexts), Failure);
    EXPECT_TRUE(host.Utility.Reports.empty());
    EXPECT_EQ(host.Utility.GuardsOf([&] { Service another(host); }),
              "Class_Initialize propagating");
    EXPECT_EQ(host.Utility.Headings, (std::set<std::string>{"Tamrivo|Service|"}));
}

} // namespace

} // namespace Tamrivo
