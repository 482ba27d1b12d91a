#include "desktop/window/parameter_commands.h"

#include "desktop/common/settings.h"
#include "desktop/common/text.h"
#include "desktop/library/group_tree.h"
#include "desktop/library/library_view.h"
#include "desktop/window/ask_name.h"
#include "desktop/window/parameter_view.h"
#include "desktop/window/workbench.h"
#include "host/framework/host_application.h"
#include "host/loci/counts.h"

#include <QMessageBox>

namespace Tamrivo
{

namespace
{

constexpr const char* nameLabel = "Name of the analysis parameter:";

} // namespace

void ParameterCommands::AskName(const QString& title, const QString& label,
                                const std::string& proposed,
                                const std::function<void(const std::string&)>& use)
{
    Tamrivo::AskName(&m_workbench.Window(), m_workbench.UserActions(), title, label, proposed, use);
}

void ParameterCommands::New()
{
    if (!m_workbench.Parameter().MayLeave())
        return;
    const auto tags = m_workbench.Loci().ChosenTags();
    const QString label = tags.empty() ? QString(nameLabel)
                                       : "Name of the analysis parameter, which begins with the " +
                                             ToQString(CountOfLoci(tags.size())) + " chosen:";
    AskName("New Analysis Parameter", label, {}, [&](const std::string& name) {
        m_workbench.Host().Parameters().Create(name, TagLists::OneEmpty);
        m_workbench.ShowNewParameter(name);
        m_workbench.Parameter().View()->Select(tags, true);
        m_workbench.Parameter().View()->Save();
        m_workbench.Reload("Made " + ToQString(name) + " with " +
                           ToQString(CountOfLoci(tags.size())) + ".");
    });
}

void ParameterCommands::Rename()
{
    if (!m_workbench.Parameter().MayLeave())
        return;
    const std::string before = m_workbench.Parameter().View()->Name();
    AskName("Rename Analysis Parameter", nameLabel, before, [&](const std::string& name) {
        m_workbench.Host().Parameters().Rename(before, name);
        m_workbench.ShowNewParameter(name);
    });
}

void ParameterCommands::Duplicate()
{
    if (!m_workbench.Parameter().MayLeave())
        return;
    const std::string original = m_workbench.Parameter().View()->Name();
    AskName("Duplicate Analysis Parameter", nameLabel, original + " copy",
            [&](const std::string& name) {
                m_workbench.Host().Parameters().Duplicate(original, name);
                m_workbench.ShowNewParameter(name);
            });
}

void ParameterCommands::Delete()
{
    const QString name = ToQString(m_workbench.Parameter().View()->Name());
    QMessageBox box(QMessageBox::Warning, "Delete Analysis Parameter",
                    "Delete the analysis parameter \"" + name + "\"?",
                    QMessageBox::Yes | QMessageBox::No, &m_workbench.Window());
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText("Its loci stay in the store.");
    box.setDefaultButton(QMessageBox::No);
    if (box.exec() != QMessageBox::Yes)
        return;
    m_workbench.Host().Parameters().Delete(FromQString(name));
    m_workbench.Parameter().Close();
    m_workbench.Groups().Choose({});
    m_workbench.Reload("Deleted " + name + ".");
}

void ParameterCommands::TurnToSelector()
{
    if (m_workbench.IsSelectorShown())
        m_workbench.TurnToTable();
    else
        m_workbench.TurnToSelector();
}

void ParameterCommands::Save()
{
    m_workbench.Parameter().View()->Save();
    m_workbench.Loci().Read();
    m_workbench.ShowGroups();
    m_workbench.Tell("Saved " + ToQString(m_workbench.Parameter().View()->Name()) + ".");
}

void ParameterCommands::Revert()
{
    m_workbench.Parameter().View()->Revert();
}

void ParameterCommands::Close()
{
    if (!m_workbench.Parameter().MayLeave())
        return;
    m_workbench.Parameter().Close();
    RememberParameter(ToQString(m_workbench.Host().Store().Name()), {});
    m_workbench.Reload({});
}

void ParameterCommands::AddChosenLoci()
{
    m_workbench.Parameter().View()->Select(m_workbench.Loci().ChosenTags(), true);
}

void ParameterCommands::TakeChosenLoci()
{
    m_workbench.Parameter().View()->Select(m_workbench.Loci().ChosenTags(), false);
}

} // namespace Tamrivo
