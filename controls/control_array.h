#pragma once

#include "controls/control.h"
#include "core/error.h"

#include <deque>
#include <initializer_list>

namespace Tamrivo
{

/// Controls of one kind with one name and an index each.
template <class Kind>
class ControlArray
{
public:
    struct Row
    {
        Declaration Declared;
        typename Kind::Settings Settings;
    };

    ControlArray(std::initializer_list<Row> rows)
    {
        for (const Row& row : rows)
            m_members.emplace_back(row.Declared, row.Settings);
    }

    int Count() const { return static_cast<int>(m_members.size()); }

    /// The member with an index. Raises `ErrorNumber::InvalidArgument` when there is none.
    Kind& Item(int index)
    {
        for (Kind& member : m_members)
        {
            if (member.Index() == index)
                return member;
        }
        throw Failure(ErrorNumber::InvalidArgument, "ControlArray",
                      "There is no control with the index " + std::to_string(index));
    }

    auto begin() { return m_members.begin(); }
    auto end() { return m_members.end(); }

private:
    std::deque<Kind> m_members;
};

} // namespace Tamrivo
