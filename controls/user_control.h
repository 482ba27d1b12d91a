#pragma once

#include "controls/container.h"
#include "core/event.h"

#include <string_view>
#include <vector>

namespace Tamrivo
{

class Menu;

/// A form of named controls. A page declares its controls as members of a class derived from this
/// one, with all that the form fixes of them; no other list of them exists.
class UserControl : public Container
{
public:
    /// @param name          class name of the user control
    /// @param width, height client area in twips
    UserControl(std::string_view name, int width, int height)
        : m_name(name), m_width(width), m_height(height)
    {}

    std::string_view Name() const { return m_name; }
    int ClientWidth() const { return m_width; }
    int ClientHeight() const { return m_height; }

    UserControl& Form() override { return *this; }

    /// False puts the controls of the form out of a person's reach, apart from those that answer in
    /// a disabled form themselves.
    virtual bool Enabled() const { return true; }

    /// All controls, in the order of their declaration.
    const std::vector<Control*>& Controls() const { return m_controls; }
    /// The control with the name, or null.
    Control* Find(std::string_view name) const;
    /// All controls by tab index; those without one come last.
    std::vector<Control*> InTabOrder() const;
    /// The controls at which the Tab key stops, in its order, whatever their present state.
    std::vector<Control*> FocusOrder() const;

    /// Shows a menu at the pointer and returns once it has closed. The 2 says that the menu follows
    /// the right mouse button.
    void PopupMenu(Menu& menu, int flags) { PopupMenuRequested(menu, flags); }

    /// For the host, which shows the menu and returns once it has closed.
    Event<Menu&, int> PopupMenuRequested;
    /// For the front end that shows the form: a control's state has changed.
    Event<Control&> ControlChanged;
    /// For the front end: `Enabled` has changed.
    Event<> EnabledChanged;

private:
    friend class Control;
    std::string_view m_name;
    int m_width;
    int m_height;
    std::vector<Control*> m_controls;
};

} // namespace Tamrivo
