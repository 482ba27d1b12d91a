#pragma once

#include "controls/user.h"
#include "editor/locus_editor_page.h"
#include "tests/fakes/fake_host.h"

#include <gtest/gtest.h>

namespace Tamrivo
{

enum class Mode
{
    New,
    Edit,
    EditUntagged,
    NewBinning,
    BinningTagged,
    BinningUntagged,
};

/// An editor page on a host of fakes. The store holds the loci "TPOX", which is the one to edit,
/// and "vWA".
class EditorHost
{
public:
    EditorHost()
    {
        Host.Objects.AddProject("First ", 7);
        Host.Objects.AddProject("default ", 8);
        Host.Objects.AddProject("Third", 9);
        for (const char* tag : {"TPOX", "vWA"})
            Host.Objects.AddCurrentLocus(tag);
        Locus->ProjectID = 9;
        Locus->AddAllele("stored");
    }

    ~EditorHost()
    {
        for (const std::string& heading : Host.Utility.Headings)
            EXPECT_EQ(heading, "Tamrivo|LocusEditorPage|");
    }

    void SetMode(Mode mode)
    {
        const bool isNew = mode == Mode::New || mode == Mode::NewBinning;
        Locus->Id = Locus->TagId = isNew ? 0 : 12;
        Locus->Tag =
            isNew || mode == Mode::EditUntagged || mode == Mode::BinningUntagged ? "" : "TPOX";
        if (mode >= Mode::NewBinning)
            Parameters().Add(std::static_pointer_cast<BinningContext>(Binning), "Binning");
    }

    void Initialize() const { Host.Base->Initialize(nullptr); }

    LocusEditorPage& Open(Mode mode)
    {
        SetMode(mode);
        OpenAgain();
        return Page;
    }
    void OpenAgain()
    {
        Parameters().Add(std::static_pointer_cast<Tamrivo::Locus>(Locus), "Locus");
        Initialize();
    }

    ParameterCollection& Parameters() const { return *Host.Base->Collection; }
    std::vector<Fakes::Report>& Reports() { return Host.Utility.Reports; }

    Fakes::FakeHost Host;
    std::shared_ptr<Fakes::FakeLocus> Locus = std::make_shared<Fakes::FakeLocus>();
    std::shared_ptr<Fakes::FakeBinning> Binning = std::make_shared<Fakes::FakeBinning>();
    LocusEditorPage Page{Host};
};

class EditorTest : public ::testing::Test, protected EditorHost
{};

using Reports = std::vector<Fakes::Report>;

/// The number of the failure that leaves an action; 0: none does.
template <class Action>
std::int32_t FailureOf(Action action)
{
    try
    {
        action();
        return 0;
    }
    catch (const Failure& failure)
    {
        return failure.Record().Number;
    }
}

} // namespace Tamrivo
