#include "desktop/alleles/allele_pane_view.h"

#include "contracts/locus.h"
#include "controls/user.h"
#include "desktop/alleles/allele_picture.h"
#include "desktop/alleles/allele_table.h"
#include "desktop/alleles/allele_table_model.h"
#include "desktop/alleles/allele_tools.h"
#include "desktop/alleles/bin_editing.h"
#include "desktop/alleles/observed_comparison.h"
#include "desktop/alleles/page_fields.h"
#include "desktop/common/actions.h"
#include "desktop/common/clipboard_table.h"
#include "desktop/common/icons.h"
#include "desktop/forms/appearance.h"
#include "editor/locus_editor_form.h"

#include <QAction>
#include <QApplication>
#include <QFileDialog>
#include <QKeyEvent>
#include <QSplitter>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace Tamrivo
{

AllelePaneView::AllelePaneView(LocusEditorForm& page, const Dyes& dyes, QWidget& parent,
                               const Actions& actions)
    : QWidget(&parent),
      m_page(page),
      m_control(page.ctlPaneAlleleList),
      m_dyes(dyes),
      m_actions(actions),
      m_pane(User::AllelesOf(m_control)),
      m_model(new AlleleTableModel(m_control, actions, this)),
      m_tools(new AlleleTools(this)),
      m_table(new AlleleTable(*m_model, this)),
      m_picture(new AllelePicture(this)),
      m_observed(new ObservedComparison(page, *m_picture, actions, this))
{
    m_table->setFocusPolicy(m_control.IsTabStop() ? Qt::StrongFocus : Qt::ClickFocus);
    setFocusProxy(m_table);
    LayOut();
    MakeActions();
    FollowPerson();
    m_changes = m_pane.Changed.Connect([this] { ShowRows(); });
    ShowRows();
}

void AllelePaneView::LayOut()
{
    auto* splitter = new QSplitter(this);
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(m_table);
    splitter->addWidget(m_picture);
    splitter->setStretchFactor(0, 2);
    splitter->setStretchFactor(1, 3);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addWidget(m_tools);
    layout->addWidget(splitter, 1);
    layout->addWidget(m_observed);
}

void AllelePaneView::MakeActions()
{
    using Keys = QKeySequence;
    AddAction("Add allele", "list-add", {Qt::Key_Insert}, [this] { AddRow(); });
    m_remove = AddAction("Remove alleles", "list-remove", Keys::keyBindings(Keys::Delete),
                         [this] { RemoveRows(); });
    m_undo = AddAction("Undo", "edit-undo", Keys::keyBindings(Keys::Undo),
                       [this] { User::UndoAlleles(m_control); });
    m_redo = AddAction("Redo", "edit-redo", Keys::keyBindings(Keys::Redo),
                       [this] { User::RedoAlleles(m_control); });
    AddAction("Copy cells", "edit-copy", Keys::keyBindings(Keys::Copy),
              [this] { CopyCells(*m_table); });
    AddAction("Paste cells", "edit-paste", Keys::keyBindings(Keys::Paste), [this] { Paste(); });
    AddAction("Compare with observed sizes", "document-open", {Qt::CTRL | Qt::SHIFT | Qt::Key_B},
              [this] { Compare(); });
}

QAction* AllelePaneView::AddAction(const QString& text, const char* icon,
                                   const QList<QKeySequence>& shortcuts,
                                   const std::function<void()>& action)
{
    auto* added = new QAction(ThemeIcon(icon), text, this);
    added->setShortcuts(shortcuts);
    added->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    added->setToolTip(text + " (" + added->shortcut().toString(QKeySequence::NativeText) + ")");
    connect(added, &QAction::triggered, this, [this, action] {
        m_table->CloseEditor();
        m_actions.Run(action);
    });
    addAction(added);
    m_table->addAction(added); // For its context menu.
    m_tools->Add(*added);
    return added;
}

void AllelePaneView::FollowPerson()
{
    connect(m_picture, &AllelePicture::Chosen, this,
            [this](std::int32_t row) { m_table->SelectRow(row - 1); });
    auto* editing = new BinEditing(*m_picture, m_control, m_actions, this);
    connect(editing, &BinEditing::NameAsked, this, [this](std::int32_t row) { NameRow(row - 1); });
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this] { MarkSelected(); });
    connect(m_table->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this] { LeaveRow(); });
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget* from, QWidget* to) {
        // A message or another program only interrupts.
        if (m_table->Holds(from) && to != nullptr && to->window() == window() &&
            !m_table->Holds(to))
            LeaveRow();
    });
}

void AllelePaneView::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter)
        return QWidget::keyPressEvent(event);
    // Here Enter acts on what has the focus, and doesn't finish the page.
    QWidget* focus = QApplication::focusWidget();
    if (auto* button = qobject_cast<QToolButton*>(focus))
        button->click();
    else if (!m_table->Holds(focus))
        m_table->setFocus(Qt::OtherFocusReason);
    else
        m_table->EditCurrent();
}

bool AllelePaneView::focusNextPrevChild(bool next)
{
    std::vector<QWidget*> ring{m_table};
    const auto buttons = m_tools->Answering();
    ring.insert(ring.end(), buttons.begin(), buttons.end());
    ring.push_back(m_picture);
    const QWidget* focus = QApplication::focusWidget();
    const auto present = std::ranges::find_if(ring, [&](const QWidget* widget) {
        return widget == focus || widget->isAncestorOf(focus);
    });
    const auto count = std::ssize(ring);
    const auto place = (present - ring.begin() + (next ? 1 : count - 1)) % count;
    ring[static_cast<std::size_t>(place)]->setFocus(next ? Qt::TabFocusReason
                                                         : Qt::BacktabFocusReason);
    return true;
}

void AllelePaneView::Refresh()
{
    ApplyReach(*this, m_control);
}

QSize AllelePaneView::LeastSize() const
{
    return {0, 7 * fontMetrics().lineSpacing()};
}

QWidget& AllelePaneView::FocusWidget()
{
    return *m_table;
}

std::vector<QWidget*> AllelePaneView::Areas()
{
    return {this, m_picture};
}

void AllelePaneView::ShowRows()
{
    m_model->Refresh();
    ShowPicture();
    m_observed->Refresh();
    ShowState();
    MarkSelected();
}

void AllelePaneView::ShowPicture()
{
    m_shown = OnPage();
    m_picture->SetDye(m_dyes, m_shown.DyeIndex);
    m_picture->Show(m_pane.Rows(), m_shown.Range);
}

AllelePaneView::Surroundings AllelePaneView::OnPage() const
{
    const auto& locus = m_pane.ShownLocus();
    if (!locus)
        return {};
    const LocusFields fields = FieldsOn(m_page, *locus);
    const LocusFields& range = fields.FragStart <= fields.FragEnd ? fields : *locus;
    return {LengthRange{static_cast<double>(range.FragStart), static_cast<double>(range.FragEnd)},
            fields.DyeIndex};
}

void AllelePaneView::FollowPage()
{
    if (OnPage() != m_shown)
        ShowPicture();
}

void AllelePaneView::ShowState()
{
    m_undo->setEnabled(m_pane.CanUndo());
    m_redo->setEnabled(m_pane.CanRedo());
    m_tools->ShowState(m_pane);
}

void AllelePaneView::LeaveUndoToPage()
{
    for (QAction* action : {m_undo, m_redo})
    {
        action->setShortcuts(QList<QKeySequence>());
        action->setVisible(false);
    }
}

void AllelePaneView::GoTo(std::int32_t row)
{
    m_table->setFocus(Qt::OtherFocusReason);
    if (row > 0)
        m_table->SelectRow(row - 1);
}

void AllelePaneView::MarkSelected()
{
    const auto rows = m_table->SelectedRows();
    m_picture->Mark({rows.begin(), rows.end()});
    m_remove->setEnabled(!rows.empty());
}

void AllelePaneView::LeaveRow()
{
    m_actions.Run([this] { User::LeaveAllele(m_control); });
}

void AllelePaneView::AddRow()
{
    std::optional<std::int32_t> after;
    if (!m_table->SelectedRows().empty() && m_table->currentIndex().isValid())
        after = m_table->currentIndex().row() + 1;
    NameRow(User::AddAllele(m_control, after) - 1);
}

void AllelePaneView::NameRow(int row)
{
    m_table->SelectRow(row);
    m_table->setFocus();
    m_table->edit(m_model->index(row, 0));
}

void AllelePaneView::RemoveRows()
{
    const auto rows = m_table->SelectedRows();
    User::RemoveAlleles(m_control, rows);
    if (m_model->rowCount() > 0)
        m_table->SelectRow(std::min(rows.front() - 1, m_model->rowCount() - 1));
}

void AllelePaneView::Paste()
{
    const auto cells = ClipboardCells();
    if (cells.empty())
        throw User::Refusal("There is no text to paste");
    const QModelIndex at = m_table->currentIndex();
    const int row = at.isValid() ? at.row() : m_model->rowCount();
    User::PasteAlleles(m_control, row + 1, at.isValid() ? static_cast<std::size_t>(at.column()) : 0,
                       cells);
}

void AllelePaneView::Compare()
{
    const QString path =
        QFileDialog::getOpenFileName(window(), "Compare with Observed Sizes", {},
                                     "Tables of sizes (*.tsv *.csv *.txt);;All files (*)");
    if (!path.isEmpty())
        m_observed->Read(path);
}

} // namespace Tamrivo
