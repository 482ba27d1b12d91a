#include "console/shell/shell.h"

#include "console/exit_status.h"
#include "console/shell/command_table.h"
#include "console/shell/words.h"
#include "controls/user.h"
#include "host/loci/progress.h"

namespace Tamrivo
{

Shell::Shell(Store& store, LineSource& source, std::ostream& out, std::ostream& err,
             AfterError afterError)
    : m_source(source), m_out(out), m_err(err), m_afterError(afterError), m_host(store, *this)
{
    m_source.SetCompleter(
        [this](std::string_view beforeCursor) { return Completions(*this, beforeCursor); });
}

Shell::~Shell()
{
    m_source.SetCompleter(nullptr);
}

int Shell::Run()
{
    while (Step())
    {}
    m_stage.Parameter.reset();
    return m_hasFailed && !m_source.IsInteractive() ? ExitStatus::Failed : ExitStatus::Done;
}

bool Shell::Step()
{
    if (m_isAtEnd)
        return false;
    m_out.flush();
    try
    {
        if (const auto line = m_source.Next(Prompt()))
        {
            Execute(*line);
            return true;
        }
    }
    catch (...)
    {
        m_host.ShowFailure(CurrentError());
    }
    m_isAtEnd = true;
    return false;
}

void Shell::Execute(const std::string& line)
{
    try
    {
        const Words words = SplitWords(line);
        if (!words.empty())
            RunCommand(*this, words);
    }
    catch (const User::Refusal& refusal)
    {
        PrintError(refusal.what());
    }
    catch (const Cancelled&)
    {
        m_out << "cancelled\n";
    }
    catch (const std::exception&)
    {
        m_host.ShowFailure(CurrentError());
    }
}

void Shell::PrintError(const std::string& reason)
{
    m_hasFailed = true;
    if (m_source.IsInteractive() || m_afterError == AfterError::KeepGoing)
    {
        m_out << "error: " << OnOneLine(reason) << '\n';
        return;
    }
    m_out.flush();
    m_err << m_source.Place() << ": error: " << OnOneLine(reason) << '\n';
    m_isAtEnd = true;
}

std::string Shell::Prompt() const
{
    if (m_stage.TopMenu())
        return "menu> ";
    if (m_stage.TopMessage())
        return "message> ";
    const UserControl* page = m_stage.Page();
    return (page ? std::string(page->Name()) : "tamrivo") + "> ";
}

void Shell::RunWizard(WizardSession& wizard)
{
    m_out << "wizard " << wizard.Name() << " started\n";
    const Stage::Showing showing(m_stage, &wizard);
    while (!wizard.HasEnded() && Step())
    {}
    if (!wizard.HasEnded())
        wizard.Cancel();
    m_out << "wizard " << wizard.Name() << (wizard.IsCancelled() ? " cancelled\n" : " finished\n");
}

void Shell::ShowMenu(UserControl& /*form*/, Menu& menu)
{
    OpenMenu open{menu};
    m_out << "menu " << Quoted(menu.Caption()) << ":";
    for (const Control* child : menu.Children())
    {
        const auto* item = dynamic_cast<const MenuItem*>(child);
        if (item && item->Visible() && !item->IsSeparator())
            m_out << ' ' << item->Name();
    }
    m_out << '\n';
    {
        const Stage::Showing showing(m_stage, &open);
        while (!open.IsClosed && Step())
        {}
    }
    // By now the menu is closed, as it is when the item's own actions run.
    if (open.Picked)
        User::Click(*open.Picked);
}

MessageAnswer Shell::ShowMessage(const std::string& text, std::int32_t kind,
                                 const std::string& title)
{
    OpenMessage open{kind};
    m_out << "message " << Quoted(title) << ' ' << Quoted(text) << ' ' << kind << '\n';
    const Stage::Showing showing(m_stage, &open);
    while (!open.Answer && Step())
    {}
    return open.Answer.value_or(kind == MessageKind::ExclamationYesNo ? MessageAnswer::No
                                                                      : MessageAnswer::Ok);
}

void Shell::ShowReport(const FailureReport& report)
{
    m_out << "report " << report.ClassName << ' ' << Quoted(report.ProcedureName) << ' '
          << report.Error.Number << ' ' << Quoted(report.Error.Source) << ' '
          << Quoted(report.Error.Description) << " final=" << (report.Final ? "true" : "false")
          << '\n';
}

void Shell::ShowFailure(const ErrorRecord& error)
{
    PrintError(error.Description);
}

} // namespace Tamrivo
