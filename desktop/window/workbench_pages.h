#pragma once

#include <QWidget>

class QStackedWidget;

namespace Tamrivo
{

class Commands;
class LibraryView;
class ParameterBar;
class ParameterView;

/// The right side of the workbench, a page at a time: the table of loci, the selector's page of the
/// open parameter, or what to do first. A bar above names the parameter.
class WorkbenchPages : public QWidget
{
public:
    /// @param library becomes a page
    WorkbenchPages(LibraryView& library, QWidget* parent);

    /// Makes the bar and the pages that offer commands. Called once, before all below.
    void Offer(const Commands& commands);

    /// Makes it a page, until it is deleted.
    void Add(ParameterView& parameter);
    void TurnToTable();
    void TurnTo(ParameterView& parameter);
    bool IsShown(const ParameterView& parameter) const;

    /// Shows in place of the table what to do first while there is nothing in it, and the bar while
    /// a parameter is open.
    /// @param parameter null when none is open
    void Update(bool hasStore, const ParameterView* parameter, bool isReadOnly);

private:
    LibraryView& m_library;
    QStackedWidget* m_stack;
    ParameterBar* m_bar = nullptr;
    QWidget* m_noStore = nullptr;
    QWidget* m_emptyStore = nullptr;
};

} // namespace Tamrivo
