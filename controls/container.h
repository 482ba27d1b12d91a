#pragma once

#include "controls/control.h"

#include <vector>

namespace Tamrivo
{

/// What other controls lie in. Hiding or disabling it puts its children out of a person's reach and
/// leaves their own state alone.
class Container
{
public:
    virtual ~Container() = default;

    /// The children in the order of their declaration.
    const std::vector<Control*>& Children() const { return m_children; }

    /// The form that the container belongs to.
    virtual UserControl& Form() = 0;
    /// The container as a control of its form; none for the form itself.
    virtual const Control* AsControl() const { return nullptr; }

private:
    friend class Control;
    std::vector<Control*> m_children;
};

} // namespace Tamrivo
