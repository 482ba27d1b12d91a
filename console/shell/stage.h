#pragma once

#include "contracts/message_box.h"
#include "controls/menu.h"
#include "controls/user_control.h"
#include "host/framework/parameter_page.h"
#include "host/framework/wizard_session.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <variant>
#include <vector>

namespace Tamrivo
{

/// A popup menu that waits to be answered.
struct OpenMenu
{
    Menu& Shown;
    MenuItem* Picked = nullptr;
    bool IsClosed = false;
};

/// A message box that waits to be answered.
struct OpenMessage
{
    std::int32_t Kind;
    std::optional<MessageAnswer> Answer = {};
};

/// All that is open in the shell: at the bottom a parameter's page or none, on it wizards, menus
/// and message boxes, each opened by what lies below it.
class Stage
{
public:
    using Layer = std::variant<WizardSession*, OpenMenu*, OpenMessage*>;

    /// Keeps a layer on top for as long as it lives.
    class Showing
    {
    public:
        Showing(Stage& stage, Layer layer) : m_stage(stage) { m_stage.m_layers.push_back(layer); }
        ~Showing() { m_stage.m_layers.pop_back(); }
        Showing(const Showing&) = delete;
        Showing& operator=(const Showing&) = delete;

    private:
        Stage& m_stage;
    };

    /// The menu or the message box on top; null when something else is.
    OpenMenu* TopMenu() const { return Top<OpenMenu>(); }
    OpenMessage* TopMessage() const { return Top<OpenMessage>(); }
    /// The wizard that was opened last, under a menu or a message box too; null when none is open.
    WizardSession* Wizard() const;
    /// The page on top; null when there is none.
    UserControl* Page() const;

    std::unique_ptr<ParameterPage> Parameter;

private:
    template <class Kind>
    Kind* Top() const
    {
        Kind* const* top = m_layers.empty() ? nullptr : std::get_if<Kind*>(&m_layers.back());
        return top ? *top : nullptr;
    }

    std::vector<Layer> m_layers;
};

} // namespace Tamrivo
