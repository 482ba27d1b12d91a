#include "tests/automation/automation_test.h"

#include <gmock/gmock.h>

namespace Tamrivo::Automation
{

namespace
{

using testing::Contains;
using testing::HasSubstr;

std::shared_ptr<PageObject> OpenEditor(const ObjectPointer& host, const ObjectPointer& parameters)
{
    auto page = NewEditorPage();
    page->Put("Host", host);
    Do(*page, "Open", {parameters});
    return page;
}

std::string Tags(Object& host)
{
    std::string tags;
    for (const Value& locus : As<List>(Do(host, "Query", {"CurrentLoci", "Name"})))
        tags += As<std::string>(As<ObjectPointer>(locus)->Get("LocusTag")) + " ";
    return tags;
}

TEST(PageObject, EditsALocusAsAPersonDoes)
{
    const Stored stored("TH01");
    const auto page = OpenEditor(stored.Host, stored.EditorParameters());
    EXPECT_EQ(As<std::string>(As<List>(page->Get("Controls")).front()), "txtLocusTag");
    EXPECT_EQ(Do(*page, "Read", {"txtFragEnd", "Text"}), Value("120"));
    Do(*page, "Paste", {"txtRepeat", ""});
    Do(*page, "Type", {"txtRepeat", "5x"});
    EXPECT_EQ(Do(*page, "Read", {"txtRepeat", "Text"}), Value("5"));
    Do(*page, "Click", {"cmdGenAlleleList"});
    EXPECT_EQ(Do(*page, "Validate"), Value(true));
    Do(*page, "Save");

    const auto saved =
        As<ObjectPointer>(As<List>(Do(*stored.Host, "Query", {"CurrentLoci", ""})).front());
    EXPECT_EQ(saved->Get("RepeatLength"), Value(5));
    EXPECT_EQ(As<List>(saved->Get("Alleles")).size(), 5U);
    EXPECT_EQ(saved->Get("LocusID"), Value(1));
}

TEST(PageObject, SaveAsStartsTheHostsWizardInsideTheEditors)
{
    const Stored stored("TH01");
    const auto host = std::make_shared<ScriptHost>();
    host->Behind = stored.Host;
    host->Own["StartWizard"] = [&](const List& arguments) -> Value {
        EXPECT_EQ(arguments[0], Value("SaveLocusTagAs"));
        const auto page = NewSaveAsPage();
        page->Put("Host", host);
        Do(*page, "Open", {arguments[1]});
        Do(*page, "Paste", {"txtLocusName", "TH01-b"});
        Do(*page, "Save");
        return true;
    };
    const auto page = OpenEditor(host, stored.EditorParameters());
    Do(*page, "Click", {"cmdSaveAs"});
    EXPECT_EQ(Tags(*stored.Host), "TH01 TH01-b ");
}

TEST(PageObject, RefusesWhatNobodyCouldDoAndStaysAsItWas)
{
    const Stored stored("TH01");
    const auto page = NewEditorPage();
    page->Put("Host", stored.Host);
    const auto error = [&](const char* name, const List& arguments) {
        const ErrorRecord record = FailureOf([&] { Do(*page, name, arguments); });
        return std::to_string(record.Number) + " " + record.Description;
    };
    EXPECT_THAT(error("Click", {"cmdGenAlleleList"}), HasSubstr("isn't open"));
    EXPECT_THAT(error("Open", {stored.Host}), HasSubstr("parameter collection"));
    EXPECT_THAT(error("Open", {ObjectPointer()}), HasSubstr("91 "));
    Do(*page, "Open", {stored.EditorParameters()});
    EXPECT_EQ(FailureOf([&] { page->Put("Host", stored.Host); }).Number, ClientError::Refused);

    struct
    {
        const char* Name;
        List Arguments;
        std::string Error;
    } const cases[] = {
        {"Jump", {}, "438 Page has no member \"Jump\""},
        {"Paste", {"txtRepeat"}, "450 Page.Paste takes 2 arguments, not 1"},
        {"Leave", {"txtRepeat", 1}, "450 Page.Leave takes 1 argument, not 2"},
        {"Press", {"txtRepeat", "x"}, "13 The argument \"key\" of Page.Press must be a whole"},
        {"Press", {"txtRepeat", 0xD800}, "6 There is no key with the code 55296"},
        {"Turn", {"tabSTRLocus", 1e10}, "6 The argument \"tab\" of Page.Turn must be"},
        {"Type", {List(), "x"}, "13 The argument \"control\" of Page.Type must be a text"},
        {"Read", {"txtNothing", "Text"}, "has no control \"txtNothing\""},
        {"Read", {"txtRepeat", "Nothing"}, "txtRepeat has no property \"Nothing\""},
        {"Click", {"txtRepeat"}, "txtRepeat can't be clicked"},
        {"Open", {stored.EditorParameters()}, "opened before"},
    };
    for (const auto& each : cases)
        EXPECT_THAT(error(each.Name, each.Arguments), HasSubstr(each.Error)) << each.Name;

    Do(*page, "Paste", {"txtFragEnd", "10"});
    EXPECT_EQ(Do(*page, "Validate"), Value(false));
    EXPECT_THAT(error("Save", {}), HasSubstr("isn't valid"));
    EXPECT_EQ(Do(*page, "Read", {"txtFragEnd", "Text"}), Value("10"));
    Do(*page, "Paste", {"txtFragEnd", "140"});
    Do(*page, "Save");
    EXPECT_THAT(error("Type", {"txtFragEnd", "1"}), HasSubstr("has been saved"));
}

TEST(PageObject, SurvivesAHostThatFails)
{
    const Stored stored("TH01");
    const auto host = std::make_shared<ScriptHost>();
    host->Behind = stored.Host;
    const auto page = OpenEditor(host, stored.EditorParameters());

    host->Own["Save"] = [](const List&) -> Value { throw Failure(4711, "Script", "disk full"); };
    host->Own["ReportError"] = host->Own["Save"];
    const ErrorRecord record = FailureOf([&] { Do(*page, "Save"); });
    EXPECT_EQ(record.Number, 4711);
    EXPECT_EQ(record.Source, "Script");
    EXPECT_EQ(record.Description, "disk full");
    host->Own.clear();
    host->Own["StartWizard"] = [](const List&) { return Value(); };
    Do(*page, "Click", {"cmdSaveAs"});
    EXPECT_THAT(As<List>(stored.Host->Get("Reports")),
                Contains(Value("LocusEditorPage cmdSaveAs_Click: What the host's StartWizard "
                               "gives must tell whether the wizard was completed, and is "
                               "nothing")));
    Do(*page, "Save");
    EXPECT_EQ(Tags(*stored.Host), "TH01 ");
}

TEST(PageObject, EndsWhatAHostCallsWithoutEnd)
{
    const Stored stored("TH01");
    const auto host = std::make_shared<ScriptHost>();
    host->Behind = stored.Host;
    const auto page = OpenEditor(host, stored.EditorParameters());
    host->Own["Save"] = [&](const List&) { return Do(*page, "Save"); };
    EXPECT_THAT(FailureOf([&] { Do(*page, "Save"); }).Description, HasSubstr("without end"));
    host->Own.clear();
    Do(*page, "Save");
}

TEST(PageObject, CanBeOpenedAgainWhenThatFailed)
{
    const Stored stored("TH01");
    const auto host = std::make_shared<ScriptHost>();
    host->Behind = stored.Host;
    const auto page = NewEditorPage();
    page->Put("Host", host);
    host->Own["Query"] = [](const List&) -> Value { return "no array"; };
    EXPECT_THAT(FailureOf([&] { Do(*page, "Open", {stored.EditorParameters()}); }).Description,
                HasSubstr("What the host's Query gives must be a list"));
    host->Own.clear();
    Do(*page, "Open", {stored.EditorParameters()});
    EXPECT_EQ(Do(*page, "Read", {"txtFragEnd", "Text"}), Value("120"));
}

/// A locus of a client's own, with few properties.
TEST(PageObject, ReadsAClientsLocusByName)
{
    const auto locus = std::make_shared<ScriptHost>();
    locus->Behind = NewEditorPage(); // knows none of the names
    locus->Own["LocusTag"] = [](const List&) { return "FGA"; };
    locus->Own["FragEnd"] = [](const List&) { return 300.0; };
    const auto host = std::make_shared<MemoryHost>();
    const auto parameters = Made(*host, "Parameters");
    Do(*parameters, "Add", {locus, "Locus"});
    const auto copy = As<ObjectPointer>(parameters->Call("Item", Access::Get, {"Locus"}));
    EXPECT_EQ(copy->Get("FragEnd"), Value(300));
    EXPECT_EQ(copy->Get("FragStart"), Value(60));
    EXPECT_THAT(FailureOf([&] {
                    Do(*parameters, "Add", {NewSaveAsPage(), "x"});
                }).Description,
                HasSubstr("no LocusTag"));
}

TEST(PaneObject, EditsAllelesAsAPersonDoes)
{
    const Stored stored("TH01");
    const auto page = NewEditorPage();
    page->Put("Host", stored.Host);
    const auto pane = As<ObjectPointer>(page->Get("Pane"));
    const auto refusal = [&](const char* name, const List& arguments) {
        return FailureOf([&] { Do(*pane, name, arguments); }).Description;
    };
    EXPECT_THAT(refusal("Add", {0}), HasSubstr("isn't open"));
    Do(*page, "Open", {stored.EditorParameters()});
    Do(*page, "Click", {"cmdGenAlleleList"});
    const std::int32_t count = As<std::int32_t>(pane->Get("Count"));
    EXPECT_EQ(Do(*pane, "Add", {count}), Value(count + 1));
    EXPECT_EQ(Do(*page, "Validate"), Value(false));
    EXPECT_EQ(As<List>(pane->Get("Problems")).size(), 1U);
    Do(*pane, "Edit", {count + 1, "name", "OL"});
    Do(*pane, "Leave");
    EXPECT_EQ(Do(*page, "Validate"), Value(true));
    EXPECT_EQ(Do(*pane, "RowOf", {"ol"}), Value(count + 1));
    EXPECT_EQ(Do(*pane, "RowOf", {"none"}), Value(0));
    EXPECT_EQ(Do(*pane, "Cell", {count + 1, "origin"}), Value("edited"));
    Do(*pane, "Remove", {1});
    Do(*pane, "Undo");
    EXPECT_EQ(pane->Get("Count"), Value(count + 1));

    EXPECT_THAT(refusal("Cell", {0, "name"}), HasSubstr("no row 0"));
    EXPECT_THAT(refusal("Cell", {1, "height"}),
                HasSubstr("no column \"height\"; it has name, size"));
    EXPECT_THAT(refusal("Edit", {1, "origin", "x"}), HasSubstr("follows from"));
    EXPECT_THAT(refusal("Edit", {1, "size", "wide"}), HasSubstr("wide"));
    EXPECT_THAT(refusal("Remove", {99}), HasSubstr("99"));
    Do(*page, "Save");
    EXPECT_THAT(refusal("Redo", {}), HasSubstr("has been saved"));
    EXPECT_THAT(FailureOf([] { NewSaveAsPage()->Get("Pane"); }).Description,
                HasSubstr("no allele pane"));
}

TEST(SelectorObject, ChoosesTagsByRowsAndMenus)
{
    const Stored stored("TH01");
    const auto second = Made(*stored.Host, "Locus");
    second->Put("LocusTag", "FGA");
    Do(*stored.Host, "Save", {second});
    const auto selector = std::make_shared<SelectorObject>();
    const auto refusal = [&](const char* name, const List& arguments) {
        return FailureOf([&] { Do(*selector, name, arguments); }).Description;
    };
    selector->Put("Host", stored.Host);
    EXPECT_THAT(refusal("CellClick", {"gridAvailable", 1, 1}), HasSubstr("isn't filled"));
    const auto parameter = Made(*stored.Host, "AnalysisParameter");
    parameter->Put("LocusTags", List{"TH01"});
    Do(*selector, "Initialize", {parameter});
    EXPECT_EQ(selector->Get("NumberOfSelectedLocusTags"), Value(1));
    EXPECT_EQ(Do(*selector, "Cell", {"gridAvailable", 1, 1}), Value("FGA"));

    Do(*selector, "CellRight", {"gridAvailable", 1, 1});
    EXPECT_THAT(refusal("Click", {"cmdAddAll"}), HasSubstr("is open; Pick"));
    EXPECT_THAT(refusal("Pick", {"mnuRemove"}), HasSubstr("no item \"mnuRemove\""));
    Do(*selector, "Pick", {"mnuAdd"});
    EXPECT_THAT(refusal("Dismiss", {}), HasSubstr("No menu is open"));
    Do(*selector, "CellDouble", {"gridSelected", 1, 1});
    EXPECT_THAT(refusal("CellClick", {"gridSelected", 7, 1}), HasSubstr("row"));
    Do(*selector, "Save");
    EXPECT_EQ(parameter->Get("LocusTags"), Value(List{"FGA"}));

    const auto other = std::make_shared<SelectorObject>();
    other->Put("Host", std::make_shared<ServiceObject>()); // Knows no Answer.
    EXPECT_THAT(FailureOf([&] { Do(*other, "Answer", {"yes"}); }).Description,
                HasSubstr("The host has no Answer"));
}

TEST(ServiceObject, OffersTheCurrentLoci)
{
    const Stored stored("TH01");
    ServiceObject service;
    service.Put("Host", stored.Host);
    EXPECT_EQ(service.Get("ContextTypes"), Value(List{"1010 Locus"}));
    EXPECT_EQ(As<List>(Do(service, "Contexts", {1010})).size(), 1U);
}

} // namespace

} // namespace Tamrivo::Automation
