#pragma once

#include "tests/selector/selector_host.h"

#include <gmock/gmock.h>

namespace Tamrivo::Fakes
{

/// A selector over the loci A to E, of which D and E are selected.
struct SelectorTest : testing::Test
{
    SelectorTest()
    {
        for (const char* tag : {"A", "B", "C", "D", "E"})
            host.Store(tag);
        Select({5, 4});
        connections.On(selector.PopupMenuRequested, [this](Menu& menu, int flags) {
            menus.push_back(menu.Name() + " " + std::to_string(flags));
            if (MenuItem* item = std::exchange(pick, nullptr))
                User::Click(*item);
        });
    }

    void Select(std::initializer_list<std::int32_t> tagIDs)
    {
        parameter->Clear();
        for (const std::int32_t tagID : tagIDs)
        {
            const auto entry = host.NewLocusTagEntry();
            dynamic_cast<FakeEntry&>(*entry).Id = tagID;
            parameter->Add(entry);
        }
    }
    void Open() { selector.Initialize(parameter); }

    std::string Buttons() const { return EnabledButtons(selector); }

    SelectorHost host;
    std::shared_ptr<FakeParameter> parameter = std::make_shared<FakeParameter>();
    STRLocusTagSelector selector{host};
    User::GridControl& available = selector.gridAvailable;
    User::GridControl& selected = selector.gridSelected;
    std::vector<std::string> menus; ///< Menus that were opened.
    MenuItem* pick = nullptr;       ///< What is picked in the next one.
    Connections connections;
};

} // namespace Tamrivo::Fakes
