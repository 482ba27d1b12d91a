#pragma once

#include "controls/container.h"

#include <string>
#include <vector>

namespace Tamrivo
{

/// A control that other controls lie in.
class ContainerControl : public Control, public Container
{
public:
    explicit ContainerControl(const Declaration& declaration)
        : Control(declaration), m_form(declaration.In.Form())
    {}

    UserControl& Form() override { return m_form; }
    const Control* AsControl() const override { return this; }

private:
    UserControl& m_form;
};

/// A titled frame, its caption in `BoldFont`.
class Frame : public ContainerControl
{
public:
    struct Settings
    {
        std::string Caption;
        int Tab = 0; ///< Which tab the frame lies on, when its container is a tab strip.
    };

    Frame(const Declaration& declaration, const Settings& settings)
        : ContainerControl(declaration), m_caption(settings.Caption), m_tab(settings.Tab)
    {}

    const std::string& Caption() const { return m_caption; }
    int Tab() const { return m_tab; }

    Tamrivo::Properties Properties() const override;

private:
    std::string m_caption;
    int m_tab;
};

/// Tabs with frames on them. Frames on a tab that isn't on show keep working.
class TabStrip : public ContainerControl
{
public:
    struct Settings
    {
        std::vector<std::string> Captions;
    };

    TabStrip(const Declaration& declaration, const Settings& settings)
        : ContainerControl(declaration), m_captions(settings.Captions)
    {}

    const std::vector<std::string>& Captions() const { return m_captions; }
    /// 0-based number of the tab on show; only a person changes it.
    int Tab() const { return m_tab; }
    void SetTab(int tab) { Assign(m_tab, tab); }

    bool IsTabStop() const override { return true; }
    Tamrivo::Properties Properties() const override;

private:
    std::vector<std::string> m_captions;
    int m_tab = 0;
};

} // namespace Tamrivo
