#pragma once

#include "core/event.h"
#include "desktop/alleles/bin_shapes.h"
#include "desktop/forms/control_view.h"
#include "host/alleles/pane_user.h"
#include "host/loci/dyes.h"

#include <QWidget>

#include <functional>
#include <optional>
#include <vector>

class QAction;

namespace Tamrivo
{

class AllelePicture;
class AlleleTable;
class AlleleTableModel;
class AlleleTools;
class LocusEditorForm;
class ObservedComparison;

/// The allele pane of the editor's page: the rows as a table beside a picture of their bins, with
/// buttons above. Range and dye of the picture are those that the page shows by now. The Tab key of
/// the form passes it by; in it, Tab goes from the table to the buttons, the picture and the table
/// again.
class AllelePaneView : public QWidget, public ControlView
{
public:
    /// @param dyes those of the lab
    AllelePaneView(LocusEditorForm& page, const Dyes& dyes, QWidget& parent,
                   const Actions& actions);

    QWidget& Widget() override { return *this; }
    void Refresh() override;
    QSize LeastSize() const override;
    bool CanGrow() const override { return true; }
    QWidget& FocusWidget() override;
    std::vector<QWidget*> Areas() override;
    void FormChanged(const Control&) override { FollowPage(); }

    /// Leaves undo and redo to the page, which has them for the fields too.
    void LeaveUndoToPage();
    /// Selects a row, counted from 1, and gives it the focus; 0: the table alone.
    void GoTo(std::int32_t row);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    void LayOut();
    void MakeActions();
    void FollowPerson();
    QAction* AddAction(const QString& text, const char* icon, const QList<QKeySequence>& shortcuts,
                       const std::function<void()>& action);
    void ShowRows();
    void ShowPicture();
    void ShowState();
    void MarkSelected();
    /// What the picture shows of the locus besides its alleles.
    struct Surroundings
    {
        std::optional<LengthRange> Range; ///< None without a locus.
        std::int32_t DyeIndex = 0;

        bool operator==(const Surroundings&) const = default;
    };
    Surroundings OnPage() const;
    void FollowPage();

    void LeaveRow();
    void AddRow();
    /// Opens the editor of a row's name, counted from 0.
    void NameRow(int row);
    void RemoveRows();
    void Paste();
    /// Asks for a table of observed sizes.
    void Compare();

    LocusEditorForm& m_page;
    User::AllelePaneControl& m_control;
    Dyes m_dyes;
    const Actions& m_actions;
    AllelePane& m_pane;
    Surroundings m_shown;
    AlleleTableModel* m_model;
    AlleleTools* m_tools;
    AlleleTable* m_table;
    AllelePicture* m_picture;
    ObservedComparison* m_observed;
    QAction* m_remove = nullptr;
    QAction* m_undo = nullptr;
    QAction* m_redo = nullptr;
    Connection m_changes;
};

} // namespace Tamrivo
