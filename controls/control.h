#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace Tamrivo
{

class Container;
class UserControl;

/// A place in twips (1440 to the inch), relative to the container.
struct Place
{
    int Left = 0;
    int Top = 0;
    int Width = 0;
    int Height = 0;
};

struct Font
{
    std::string Name;
    double Points;
    bool Bold;
};

/// The font of captions that stand out.
inline const Font BoldFont{"MS Sans Serif", 8.25, true};

/// What a form says of every control.
struct Declaration
{
    std::string Name;
    Container& In;
    int TabIndex = -1; ///< Unique in the form; -1 for what never takes part in the order.
    Tamrivo::Place Place = {};
    std::optional<int> Index = {}; ///< Index of a member of a control array.
};

/// A property's value as a front end or a script reads it.
using PropertyValue = std::variant<bool, std::int32_t, std::string>;
using Properties = std::vector<std::pair<std::string, PropertyValue>>;

/// One control of a form: its state and its events, without any drawing. The logic may read and
/// write every state at any time; what a person may do is decided by controls/user.h.
class Control
{
public:
    explicit Control(const Declaration& declaration);
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;
    virtual ~Control() = default;

    /// The name in the form, a member of an array with its index: "optAlleleNaming(1)".
    const std::string& Name() const { return m_name; }
    const Container& Parent() const { return m_parent; }
    /// The form that the control belongs to.
    UserControl& Form() const;
    int TabIndex() const { return m_tabIndex; }
    const Tamrivo::Place& Place() const { return m_place; }
    std::optional<int> Index() const { return m_index; }

    /// The control's own state, whatever its containers are.
    bool Enabled() const { return m_enabled; }
    void SetEnabled(bool enabled) { Assign(m_enabled, enabled); }
    bool Visible() const { return m_visible; }
    void SetVisible(bool visible) { Assign(m_visible, visible); }

    /// Whether the Tab key stops here while the control can be used.
    virtual bool IsTabStop() const { return false; }

    /// Whether the control itself answers a person's actions while its form is disabled.
    virtual bool AnswersInDisabledForm() const { return false; }

    /// Every property that can be read, by name.
    virtual Tamrivo::Properties Properties() const;

protected:
    /// Writes a piece of state and tells the form's observer; gives whether anything changed.
    template <class T>
    bool Assign(T& state, const T& value)
    {
        if (state == value)
            return false;
        state = value;
        NotifyChanged();
        return true;
    }

    /// Tells the form's observer that the control's state has changed.
    void NotifyChanged();

private:
    std::string m_name;
    Container& m_parent;
    int m_tabIndex;
    Tamrivo::Place m_place;
    std::optional<int> m_index;
    bool m_enabled = true;
    bool m_visible = true;
};

} // namespace Tamrivo
