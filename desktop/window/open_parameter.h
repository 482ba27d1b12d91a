#pragma once

#include <QObject>

#include <string>
#include <vector>

namespace Tamrivo
{

class ParameterView;
class Workbench;
class WorkbenchPages;

/// The place in a workbench for one analysis parameter, which is open there or not. Its selection
/// is shown as a page, as ticks before the loci, and as the count of its group.
class OpenParameter : public QObject
{
    Q_OBJECT

public:
    /// Both must outlive it.
    OpenParameter(Workbench& bench, WorkbenchPages& pages);

    /// The page of the parameter; null when none is open.
    ParameterView* View() const { return m_view; }

    /// Whether the parameter may be left: nothing unsaved, or the person has decided.
    bool MayLeave();
    /// Opens a parameter after asking about unsaved changes. Gives whether it is open.
    bool Open(const std::string& name);
    /// Opens the one that was shown last in the store, if it is there still.
    void OpenLast();
    /// Opens one without asking. A failure is shown and leaves what is open.
    void Replace(const std::string& name);
    void Close();

    /// Opens a parameter and adds the loci to its selection.
    void AddTo(const std::string& name, const std::vector<std::string>& tags);
    /// Reads the store's loci anew and keeps the selection.
    void Reload();
    /// Ticks and marks what is selected at present.
    void ShowSelection();

signals:
    /// Another parameter is open or none, or the selection has changed.
    void Changed();

private:
    Workbench& m_bench;
    WorkbenchPages& m_pages;
    ParameterView* m_view = nullptr;
};

} // namespace Tamrivo
