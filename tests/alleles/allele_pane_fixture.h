#pragma once

#include "controls/user.h"
#include "controls/user_control.h"
#include "host/alleles/allele_pane.h"
#include "host/alleles/pane_user.h"
#include "tests/fakes/fake_host.h"

#include <gtest/gtest.h>

namespace Tamrivo::Testing
{

inline const AlleleColumn& NameColumn = AlleleColumns[0];
inline const AlleleColumn& SizeColumn = AlleleColumns[1];
inline const AlleleColumn& FromColumn = AlleleColumns[2];
inline const AlleleColumn& ToColumn = AlleleColumns[3];
inline const AlleleColumn& VirtualColumn = AlleleColumns[4];

inline std::vector<AlleleFields> Contents(const AllelePane& pane)
{
    std::vector<AlleleFields> contents;
    for (const auto& row : pane.Rows())
        contents.push_back(*row);
    return contents;
}

class PaneForm : public UserControl
{
public:
    explicit PaneForm(const std::shared_ptr<AllelePane>& pane)
        : UserControl("PaneForm", 0, 0),
          Alleles({.Name = "ctlPaneAlleleList", .In = *this}, {.Object = pane})
    {}

    User::AllelePaneControl Alleles;
};

class AllelePaneTest : public testing::Test
{
protected:
    AllelePaneTest()
    {
        Locus->RepeatLength = 4;
        Locus->ShortestAlleleSize = 60;
        Locus->SystemConfInt = 0.5;
        AddAllele("10", 68);
        AddAllele("8", 60);
        AddAllele("9", 64);
        m_connections.On(Pane->AlleleEdited, [this](Allele& allele) {
            Events.push_back("edited " + allele.AlleleText1);
        });
        m_connections.On(Pane->ListChanged, [this] { Events.push_back("list"); });
        m_connections.On(Pane->ValidityChanged, [this](bool& isValid) {
            Events.push_back(isValid ? "valid" : "invalid");
        });
    }

    void AddAllele(const std::string& name, double size)
    {
        const auto allele = Locus->AddAllele(name);
        allele->AlleleReal1 = size;
        allele->AlleleReal2 = size - 0.5;
        allele->AlleleReal3 = size + 0.5;
    }

    /// The names of the rows in their order.
    std::vector<std::string> Names() const
    {
        std::vector<std::string> names;
        for (const auto& row : Pane->Rows())
            names.push_back(row->AlleleText1);
        return names;
    }

    std::vector<std::string> TakeEvents() { return std::exchange(Events, {}); }

    using List = std::vector<std::string>;

    Fakes::FakeHost Host;
    std::shared_ptr<Fakes::FakeLocus> Locus = std::make_shared<Fakes::FakeLocus>();
    std::shared_ptr<AllelePane> Pane = std::make_shared<AllelePane>(Host);
    PaneForm Form{Pane};
    List Events;
    Connections m_connections;
};

} // namespace Tamrivo::Testing
