#include "desktop/alleles/allele_pane_view.h"

#include "contracts/locus.h"
#include "controls/text_field.h"
#include "controls/user.h"
#include "controls/user_control.h"
#include "core/numbers.h"
#include "desktop/alleles/allele_picture.h"
#include "desktop/alleles/allele_table_model.h"
#include "desktop/clipboard_table.h"
#include "desktop/forms/actions.h"
#include "desktop/forms/appearance.h"
#include "desktop/icons.h"
#include "desktop/text.h"

#include <QAction>
#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QScrollBar>
#include <QSplitter>
#include <QTableView>
#include <QTimer>
#include <QToolButton>

#include <set>

namespace Tamrivo
{

namespace
{

/// The fields of the editor's page in which the fragment range is edited. The locus itself gets it
/// later.
constexpr const char* rangeStartField = "txtFragStart";
constexpr const char* rangeEndField = "txtFragEnd";

std::optional<double> NumberIn(const UserControl& form, const char* field)
{
    const auto* found = dynamic_cast<const TextField*>(form.Find(field));
    if (found == nullptr || !IsNumeric(found->Text()))
        return std::nullopt;
    return ToDouble(found->Text());
}

} // namespace

AllelePaneView::AllelePaneView(User::AllelePaneControl& pane, QWidget& parent,
                               const Actions& actions)
    : QWidget(&parent),
      m_control(pane),
      m_actions(actions),
      m_pane(User::AllelesOf(pane)),
      m_model(new AlleleTableModel(pane, actions, this)),
      m_table(new QTableView(this)),
      m_picture(new AllelePicture(this)),
      m_state(new QLabel(this))
{
    m_table->setModel(m_model);
    m_table->setAccessibleName("Alleles");
    m_table->setTabKeyNavigation(false);
    m_table->setFocusPolicy(pane.IsTabStop() ? Qt::StrongFocus : Qt::ClickFocus);
    m_table->setAlternatingRowColors(true);
    m_table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    m_table->horizontalHeader()->setHighlightSections(false);
    m_state->setTextFormat(Qt::PlainText);
    m_state->setAccessibleName("State of the allele list");

    auto* splitter = new QSplitter(this);
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(m_table);
    splitter->addWidget(m_picture);
    splitter->setStretchFactor(0, 2);
    splitter->setStretchFactor(1, 3);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addLayout(new QHBoxLayout);
    layout->addWidget(splitter, 1);
    MakeActions();

    // The editor of the cell is still to be closed.
    m_model->onMoved = [this](int row) {
        QTimer::singleShot(0, this, [=, this] { SelectRow(row); });
    };
    m_picture->onClicked = [this](std::int32_t row) {
        SelectRow(row - 1);
        m_table->setFocus();
    };
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this] { MarkSelected(); });
    m_pane.Changed = [this] { ShowRows(); };
    FitTable();
    ShowRows();
}

AllelePaneView::~AllelePaneView()
{
    m_pane.Changed = nullptr;
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
    AddAction("Copy cells", "edit-copy", Keys::keyBindings(Keys::Copy), [this] { Copy(); });
    AddAction("Paste cells", "edit-paste", Keys::keyBindings(Keys::Paste), [this] { Paste(); });
    auto* tools = static_cast<QHBoxLayout*>(layout()->itemAt(0)->layout());
    tools->addSpacing(fontMetrics().averageCharWidth());
    tools->addWidget(m_state, 1);
    m_table->setContextMenuPolicy(Qt::ActionsContextMenu);
}

QAction* AllelePaneView::AddAction(const QString& text, const char* icon,
                                   const QList<QKeySequence>& shortcuts,
                                   const std::function<void()>& action)
{
    auto* added = new QAction(ThemeIcon(icon), text, this);
    added->setShortcuts(shortcuts);
    added->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    added->setToolTip(text + " (" + added->shortcut().toString(QKeySequence::NativeText) + ")");
    connect(added, &QAction::triggered, this, [this, action] { m_actions.Run(action); });
    m_table->addAction(added);

    auto* button = new QToolButton(this);
    button->setDefaultAction(added);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::NoFocus);
    button->setAccessibleName(text);
    static_cast<QHBoxLayout*>(layout()->itemAt(0)->layout())->addWidget(button);
    return added;
}

void AllelePaneView::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        FitTable();
}

void AllelePaneView::FitTable()
{
    m_table->verticalHeader()->setDefaultSectionSize(fontMetrics().lineSpacing() * 3 / 2);
    // Every heading can be read, whatever the splitter leaves to the table.
    int widest = 0;
    for (const AlleleColumn& column : AlleleColumns)
        widest = std::max(widest, fontMetrics().horizontalAdvance(ToQString(column.Title)));
    const int section = widest + 2 * fontMetrics().averageCharWidth();
    m_table->horizontalHeader()->setMinimumSectionSize(section);
    m_table->setMinimumWidth(
        section * m_model->columnCount() + m_table->verticalHeader()->sizeHint().width() +
        m_table->verticalScrollBar()->sizeHint().width() + 2 * m_table->frameWidth());
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

void AllelePaneView::ShowRows()
{
    m_model->Refresh();
    ShowPicture();
    ShowState();
    MarkSelected();
}

void AllelePaneView::ShowPicture()
{
    m_picture->Show(m_pane.Rows(), Range());
}

std::optional<LengthRange> AllelePaneView::Range() const
{
    const auto& locus = m_pane.ShownLocus();
    if (!locus)
        return std::nullopt;
    const auto from = NumberIn(m_control.Form(), rangeStartField);
    const auto to = NumberIn(m_control.Form(), rangeEndField);
    if (from && to && *from <= *to)
        return LengthRange{*from, *to};
    return LengthRange{static_cast<double>(locus->FragStart), static_cast<double>(locus->FragEnd)};
}

void AllelePaneView::FormChanged(const Control& control)
{
    if (control.Name() == rangeStartField || control.Name() == rangeEndField)
        ShowPicture();
}

void AllelePaneView::ShowState()
{
    m_undo->setEnabled(m_pane.CanUndo());
    m_redo->setEnabled(m_pane.CanRedo());
    const auto& problems = m_pane.Problems();
    QString text =
        QString(m_pane.Rows().size() == 1 ? "%1 allele" : "%1 alleles").arg(m_pane.Rows().size());
    if (!problems.empty())
        text = QString("Row %1: %2").arg(problems[0].Row).arg(ToQString(problems[0].Reason));
    if (problems.size() > 1)
        text += QString(" (and %1 more)").arg(problems.size() - 1);
    m_state->setText(text);
}

std::vector<std::int32_t> AllelePaneView::SelectedRows() const
{
    std::set<std::int32_t> rows;
    for (const QModelIndex& index : m_table->selectionModel()->selectedIndexes())
        rows.insert(index.row() + 1);
    return {rows.begin(), rows.end()};
}

void AllelePaneView::MarkSelected()
{
    const auto rows = SelectedRows();
    m_picture->Mark({rows.begin(), rows.end()});
    m_remove->setEnabled(!rows.empty());
}

void AllelePaneView::SelectRow(int row)
{
    const QModelIndex cell = m_model->index(row, 0);
    m_table->selectionModel()->setCurrentIndex(cell, QItemSelectionModel::ClearAndSelect |
                                                         QItemSelectionModel::Rows);
    m_table->scrollTo(cell);
}

void AllelePaneView::AddRow()
{
    const int row = User::AddAllele(m_control) - 1;
    SelectRow(row);
    m_table->setFocus();
    m_table->edit(m_model->index(row, 0));
}

void AllelePaneView::RemoveRows()
{
    const auto rows = SelectedRows();
    User::RemoveAlleles(m_control, rows);
    if (m_model->rowCount() > 0)
        SelectRow(std::min(rows.front() - 1, m_model->rowCount() - 1));
}

void AllelePaneView::Copy() const
{
    CopyCells(*m_table);
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

} // namespace Tamrivo
