#pragma once

#include "console/shell/line_source.h"
#include "console/shell/stage.h"
#include "host/framework/front_end.h"
#include "host/framework/host_application.h"

#include <memory>
#include <ostream>
#include <string>

namespace Tamrivo
{

/// What to do after a command that was refused.
enum class AfterError
{
    Stop,
    KeepGoing,
};

/// The front end of a host and a person who give commands, one a line. The language is told in
/// docs/shell.md.
///
/// Whatever opens during a command (a wizard, a menu, a message box) reads its own commands from
/// the same source before that command returns.
class Shell : public FrontEnd
{
public:
    /// @param source when a person types its lines, the shell goes on after every error
    Shell(Store& store, LineSource& source, std::ostream& out, std::ostream& err,
          AfterError afterError);
    ~Shell() override;

    /// Runs the commands to the end of the input and closes what is open then. Gives an
    /// `ExitStatus`.
    int Run();

    // For the commands

    HostApplication& Host() { return m_host; }
    Tamrivo::Stage& Stage() { return m_stage; }
    const Tamrivo::Stage& Stage() const { return m_stage; }
    std::ostream& Out() { return m_out; }
    /// Ends the input after the command that is running.
    void Quit() { m_isAtEnd = true; }
    /// The parameters of the wizard that the host started last; null before the first.
    std::shared_ptr<ParameterCollection> LastParameters;

    // The front end's part

    void RunWizard(WizardSession& wizard) override;
    void ShowMenu(UserControl& form, Menu& menu) override;
    MessageAnswer ShowMessage(const std::string& text, std::int32_t kind,
                              const std::string& title) override;
    void ShowReport(const FailureReport& report) override;
    void ShowFailure(const ErrorRecord& error) override;

private:
    /// Reads and runs one line. False at the end of the input.
    bool Step();
    void Execute(const std::string& line);
    void PrintError(const std::string& reason);
    std::string Prompt() const;

    LineSource& m_source;
    std::ostream& m_out;
    std::ostream& m_err;
    AfterError m_afterError;
    HostApplication m_host;
    Tamrivo::Stage m_stage;
    bool m_isAtEnd = false;
    bool m_hasFailed = false;
};

} // namespace Tamrivo
