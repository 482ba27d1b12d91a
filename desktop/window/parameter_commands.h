#pragma once

#include <functional>
#include <string>

class QString;

namespace Tamrivo
{

class Workbench;

/// Makes and changes analysis parameters; all but `New` act on the open one.
class ParameterCommands
{
public:
    explicit ParameterCommands(Workbench& workbench) : m_workbench(workbench) {}

    void New();
    void Rename();
    void Duplicate();
    void Delete();
    void TurnToSelector();
    void Save();
    void Revert();
    void Close();
    void AddChosenLoci();
    void TakeChosenLoci();

private:
    void AskName(const QString& title, const QString& label, const std::string& proposed,
                 const std::function<void(const std::string&)>& use);

    Workbench& m_workbench;
};

} // namespace Tamrivo
