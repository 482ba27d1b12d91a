#pragma once

#include <string>
#include <vector>

namespace Tamrivo
{

class Workbench;

/// What is done with the chosen loci. Each raises `User::Refusal` when too few or too many are.
class LocusCommands
{
public:
    explicit LocusCommands(Workbench& workbench) : m_workbench(workbench) {}

    void New();
    void Edit();
    void EditForBinning();
    void Rename();
    void Duplicate();
    void SetDye();
    void SetProject();
    void Delete();
    void Compare();
    void Check();
    void Copy();

private:
    bool MayDelete(const std::vector<std::string>& tags);

    Workbench& m_workbench;
};

} // namespace Tamrivo
