#pragma once

namespace Tamrivo
{

class Workbench;

/// Searches, and those that are kept as groups.
class SearchCommands
{
public:
    explicit SearchCommands(Workbench& workbench) : m_workbench(workbench) {}

    void Find();
    /// Raises `ErrorNumber::InvalidArgument` for a search that is empty or wrong.
    void Keep();
    void Forget();

private:
    Workbench& m_workbench;
};

} // namespace Tamrivo
