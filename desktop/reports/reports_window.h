#pragma once

#include "contracts/service_base.h"
#include "host/reports/report.h"

#include <QWidget>

#include <optional>

class QComboBox;
class QLabel;
class QTableView;

namespace Tamrivo
{

class Actions;
class ReportTableModel;

/// The service's report contexts as a table, to be printed or saved as PDF, HTML or TSV. Rows are
/// printed and saved in the order shown.
class ReportsWindow : public QWidget
{
public:
    /// Both must outlive the window.
    ReportsWindow(HostApplication& host, const Actions& actions, QWidget* parent = nullptr);

    ~ReportsWindow() override;

    /// Shows all contexts, as the store has them now.
    void ShowAll();
    /// Shows the contexts of an analysis parameter's loci alone, in the parameter's order. The
    /// person may go over to all contexts and back.
    void ShowParameter(const std::string& name, std::vector<std::string> tags);

    /// Asks where to, and saves the table in the format that the file's name ends in.
    void SaveAs();
    /// Saves the table: PDF, HTML or TSV by the end of the name. Raises
    /// `ErrorNumber::InvalidArgument` for another end, and when the file can't be written.
    void Save(const QString& path);
    /// Asks for a printer and prints the table.
    void Print();

protected:
    void changeEvent(QEvent* event) override;

private:
    struct Parameter
    {
        std::string Name;
        std::vector<std::string> Tags;
    };

    void SetUpTable();
    void FitRows();
    QLayout* MakeTopRow();
    void OfferScopes();
    void Load();
    void ShowStatus(const QString& done = {});

    HostApplication& m_host;
    const Actions& m_actions;
    std::optional<Parameter> m_parameter;

    QComboBox* m_type;
    QComboBox* m_scope;
    ReportTableModel* m_model;
    QTableView* m_table;
    QLabel* m_status;
};

} // namespace Tamrivo
