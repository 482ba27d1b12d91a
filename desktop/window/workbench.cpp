#include "desktop/window/workbench.h"

#include "controls/user.h"
#include "desktop/common/actions.h"
#include "desktop/common/settings.h"
#include "desktop/common/text.h"
#include "desktop/findings/finding_place.h"
#include "desktop/findings/finding_watch.h"
#include "desktop/findings/findings_view.h"
#include "desktop/front_end/desktop_front_end.h"
#include "desktop/front_end/wizard_dialog.h"
#include "desktop/lanes/locus_lanes.h"
#include "desktop/library/group_tree.h"
#include "desktop/library/library_table.h"
#include "desktop/library/library_view.h"
#include "desktop/window/commands.h"
#include "desktop/window/history_commands.h"
#include "desktop/window/locus_commands.h"
#include "desktop/window/parameter_commands.h"
#include "desktop/window/parameter_view.h"
#include "desktop/window/store_session.h"
#include "desktop/window/workbench_pages.h"

#include <QAction>
#include <QMainWindow>
#include <QTimer>

#include <utility>

namespace Tamrivo
{

Workbench::Workbench(DesktopFrontEnd& frontEnd, QMainWindow& window)
    : QSplitter(&window),
      m_frontEnd(frontEnd),
      m_openedAgain(frontEnd.OpenedAgain.Connect([this] { Reload("Opened the store again."); })),
      m_editors(frontEnd.UserActions()),
      m_groups(new GroupTree(this)),
      m_library(new LibraryView(frontEnd.UserActions(), this)),
      m_pages(new WorkbenchPages(*m_library, this)),
      m_parameter(*this, *m_pages)
{
    ConnectParts();
}

Workbench::~Workbench()
{
    // The pages go while what they show is there.
    disconnect(m_library, nullptr, this, nullptr);
    m_parameter.Close();
}

void Workbench::Offer(const Commands& commands)
{
    m_pages->Offer(commands);
    setStretchFactor(1, 1);
    setChildrenCollapsible(false);

    m_groups->ParameterCommands = commands.For(CommandPlace::ParameterMenu);
    m_groups->SearchCommands = commands.For(CommandPlace::SearchMenu);
    LibraryTable& table = m_library->LociTable();
    table.addActions(commands.For(CommandPlace::LocusMenu));
    table.setContextMenuPolicy(Qt::ActionsContextMenu);
    commands[Do<&ParameterCommands::TurnToSelector>].setCheckable(true);
    connect(m_groups, &GroupTree::DeletedAsked, &commands[Do<&HistoryCommands::ShowDeleted>],
            &QAction::trigger);
    QAction& edit = commands[Do<&LocusCommands::Edit>];
    connect(&table, &LibraryTable::EditAsked, &edit, &QAction::trigger);
    connect(&table, &LibraryTable::DeleteAsked, &commands[Do<&LocusCommands::Delete>],
            &QAction::trigger);
    m_library->Preview().Picture().onDoubleClicked = [this, &edit](const std::string& tag) {
        m_library->ChooseTags({tag});
        // Once what was chosen has been noticed.
        QTimer::singleShot(0, &edit, &QAction::trigger);
    };
    connect(this, &Workbench::Changed, this, [this, &commands] {
        ShowPage();
        commands[Do<&ParameterCommands::TurnToSelector>].setChecked(IsSelectorShown());
    });
    emit Changed();
}

void Workbench::ConnectParts()
{
    connect(m_groups, &GroupTree::GroupChosen, this,
            [this](const LocusGroup& group) { UserActions().Run([&] { ChooseGroup(group); }); });
    connect(m_groups, &GroupTree::LociDropped, this,
            [this](const std::string& parameter, const std::vector<std::string>& tags) {
                UserActions().Run([&] { m_parameter.AddTo(parameter, tags); });
            });
    connect(m_library, &LibraryView::Chosen, this, &Workbench::Changed);
    connect(m_library, &LibraryView::Ticked, this, [this](const std::string& tag, bool isTicked) {
        UserActions().Run([&] { m_parameter.View()->Select({tag}, isTicked); });
    });
    connect(&m_library->Watch(), &FindingWatch::Changed, this, [this] {
        // The number of loci with problems.
        if (m_library->Loci() != nullptr)
            UserActions().Run([this] { ShowGroups(); });
    });
    connect(&m_library->FoundProblems(), &FindingsView::Chosen, this,
            [this](const Finding& finding) { UserActions().Run([&] { LeadTo(finding); }); });
    connect(&m_editors, &EditorWindows::Stored, this,
            [this](const QString& tag) { Reload("Stored " + tag + ".", {FromQString(tag)}); });
    connect(&m_parameter, &OpenParameter::Changed, this, [this] {
        emit SelectionChanged();
        emit Changed();
    });
    m_library->Preview().Picture().onClicked = [this](const std::string& tag) {
        m_library->ChooseTags({tag});
    };
}

HostApplication& Workbench::Host() const
{
    return m_session->Host();
}

const Actions& Workbench::UserActions() const
{
    return m_frontEnd.UserActions();
}

QWidget& Workbench::Window() const
{
    return *window();
}

bool Workbench::OpenStore(const std::string& address)
{
    if (!m_parameter.MayLeave())
        return false;
    std::unique_ptr<StoreSession> opened;
    const bool isOpen =
        UserActions().Run([&] { opened = std::make_unique<StoreSession>(address, m_frontEnd); });
    if (!isOpen || !m_editors.CloseAll())
    {
        opened.reset();
        m_frontEnd.SetHost(HasStore() ? &Host() : nullptr);
        return false;
    }
    m_parameter.Close();
    emit StoreClosing();
    m_library->SetStore(nullptr);
    // The former session gives the front end back before the new one takes it.
    m_session.reset();
    m_session = std::move(opened);
    m_frontEnd.SetHost(&Host());
    m_library->SetStore(&Host().Store());
    // A password must not end up among the settings.
    if (Host().Store().Name() == address)
        RememberStore(ToQString(address));
    Reload({});
    m_parameter.OpenLast();
    return true;
}

bool Workbench::MayClose()
{
    return m_parameter.MayLeave() && m_editors.CloseAll();
}

std::vector<std::string> Workbench::ChosenLoci() const
{
    auto tags = IsSelectorShown() ? m_parameter.View()->HighlightedTags() : m_library->ChosenTags();
    if (tags.empty())
        throw User::Refusal("No locus is chosen");
    return tags;
}

std::string Workbench::ChosenLocus() const
{
    const auto tags = ChosenLoci();
    if (tags.size() > 1)
        throw User::Refusal("Choose one locus for this");
    return tags.front();
}

void Workbench::Reload(const QString& news, const std::vector<std::string>& choose)
{
    UserActions().Run([&] {
        m_library->Read();
        m_parameter.Reload();
        ShowGroups();
        if (!choose.empty())
            m_library->ChooseTags(choose);
    });
    emit Changed();
    Tell(news);
}

void Workbench::ShowGroups()
{
    m_groups->Show(GroupsOf(*m_library->Loci(), KeptSearches()), *m_library->Loci());
    m_parameter.ShowSelection();
    const LocusGroup& chosen = m_groups->Chosen();
    // The loci of a parameter may be others by now.
    if (chosen != m_library->Group() || chosen.What == LocusGroup::Kind::Parameter)
        m_library->ShowGroup(chosen);
}

void Workbench::ChooseGroup(const LocusGroup& group)
{
    const bool isParameter = group.What == LocusGroup::Kind::Parameter;
    if (isParameter && !m_parameter.Open(FromQString(group.Name)))
        return m_groups->Choose({});
    m_pages->TurnToTable();
    m_library->ShowGroup(group);
    if (isParameter)
        m_library->Preview().setCurrentIndex(LocusPreview::Lanes);
    emit Changed();
}

void Workbench::LeadTo(const Finding& finding)
{
    if (!finding.Tag.empty())
        Tamrivo::LeadTo(m_editors.Open(Host(), finding.Tag, false).Page(), finding);
}

void Workbench::ShowAllLoci()
{
    m_groups->Choose({});
    m_library->SetSearch({});
    TurnToTable();
}

void Workbench::TurnToTable()
{
    m_pages->TurnToTable();
    emit Changed();
}

void Workbench::TurnToSelector()
{
    m_pages->TurnTo(*m_parameter.View());
    emit Changed();
}

bool Workbench::IsSelectorShown() const
{
    return m_parameter.View() != nullptr && m_pages->IsShown(*m_parameter.View());
}

void Workbench::ShowNewParameter(const std::string& name)
{
    m_parameter.Close();
    m_parameter.Replace(name);
    Reload({});
    const LocusGroup group{LocusGroup::Kind::Parameter, ToQString(name)};
    m_groups->Choose(group);
    ChooseGroup(group);
}

void Workbench::ShowPage()
{
    m_groups->setEnabled(HasStore());
    m_pages->Update(HasStore(), m_parameter.View(), HasStore() && Host().Store().IsReadOnly());
}

} // namespace Tamrivo
