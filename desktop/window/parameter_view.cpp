#include "desktop/window/parameter_view.h"

#include "desktop/common/actions.h"
#include "desktop/common/long_work.h"
#include "desktop/common/text.h"
#include "desktop/forms/form_view.h"
#include "desktop/front_end/hosted_views.h"
#include "desktop/lanes/locus_lanes.h"
#include "host/framework/host_application.h"
#include "host/framework/parameter_page.h"
#include "host/grid/grid_model.h"
#include "host/grid/grid_user.h"

#include <QMessageBox>
#include <QScrollArea>
#include <QSplitter>
#include <QTableView>
#include <QVBoxLayout>

namespace Tamrivo
{

namespace
{

constexpr std::int32_t tagColumn = 1;

/// Moves every row whose tag `moves` takes to the other grid, by the button that moves the
/// highlight.
void MoveRows(User::GridControl& grid, CommandButton& button,
              const std::function<bool(const std::string&)>& moves)
{
    GridModel& rows = ModelOf(grid.Object());
    std::vector<std::int32_t> moved;
    for (std::int32_t row = 1; row <= rows.Rows(); ++row)
    {
        if (moves(rows.Cell(row, tagColumn)))
            moved.push_back(row);
    }
    if (moved.empty())
        return;
    // Only the last row is highlighted as a person does it: with very many rows each one would
    // take its time.
    const std::int32_t last = moved.back();
    moved.pop_back();
    rows.SetHighlight(moved, last);
    User::Toggle(grid, last);
    User::Click(button);
}

} // namespace

ParameterView::ParameterView(HostApplication& host, const Actions& actions, const std::string& name,
                             QWidget* parent)
    : QWidget(parent),
      m_host(host),
      m_actions(actions),
      m_name(name),
      m_splitter(new QSplitter(Qt::Vertical, this)),
      m_lanes(new LocusLanes(actions, this))
{
    m_lanes->allelesOf = [this](const std::string& tag) {
        return LaneAllelesOf(m_host.Store().FindLocus(tag).get());
    };
    auto* scroll = new QScrollArea(m_splitter);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setFocusPolicy(Qt::NoFocus);
    m_splitter->addWidget(scroll);
    m_splitter->addWidget(m_lanes);
    m_splitter->setStretchFactor(0, 3);
    m_splitter->setStretchFactor(1, 2);
    m_splitter->setChildrenCollapsible(false);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_splitter, 1);

    // Changes of many rows come one by one.
    m_selectionChanged.setSingleShot(true);
    m_selectionChanged.setInterval(0);
    connect(&m_selectionChanged, &QTimer::timeout, this,
            [this] { m_actions.Run([this] { ShowSelection(); }); });
    Open();
    // The lists are seen before the picture of very many loci is made.
    m_selectionChanged.start();
}

ParameterView::~ParameterView()
{
    // The form goes before the page that it shows.
    delete m_form;
}

void ParameterView::Open()
{
    const LongWork work(m_host.Store(), "Reading the loci...", this);
    auto page = std::make_unique<ParameterPage>(m_host, m_host.Parameters().Open(m_name));
    delete m_form;
    m_page = std::move(page);
    m_form = new FormView(m_page->Selector(), m_actions, HostedViews({}));
    static_cast<QScrollArea*>(m_splitter->widget(0))->setWidget(m_form);
    WatchSelection();
}

void ParameterView::WatchSelection()
{
    const auto& view =
        dynamic_cast<QTableView&>(m_form->ViewOf(m_page->Selector().gridSelected)->Widget());
    const auto* rows = view.model();
    const auto restart = [this] { m_selectionChanged.start(); };
    connect(rows, &QAbstractItemModel::rowsInserted, this, restart);
    connect(rows, &QAbstractItemModel::rowsRemoved, this, restart);
    connect(rows, &QAbstractItemModel::modelReset, this, restart);
    connect(rows, &QAbstractItemModel::dataChanged, this, restart);
}

void ParameterView::ShowSelection()
{
    std::vector<LaneLocus> loci;
    for (const auto& locus : m_page->Selector().SelectedLocusTags())
        loci.push_back({locus->LocusTag(), locus->DyeIndex, locus->FragStart, locus->FragEnd});
    m_lanes->SetLoci(std::move(loci), m_host.Store().Dyes());
    m_isChanged = m_page->IsChanged();
    emit Changed();
}

bool ParameterView::IsChanged() const
{
    return m_selectionChanged.isActive() ? m_page->IsChanged() : m_isChanged;
}

void ParameterView::Save()
{
    const LongWork work(m_host.Store(), "Saving the selection...", this);
    m_page->Save();
    ShowSelection();
}

void ParameterView::Revert()
{
    Open();
    ShowSelection();
}

bool ParameterView::MayLeave()
{
    if (!IsChanged())
        return true;
    QMessageBox box(QMessageBox::Warning, "Unsaved Changes",
                    "The selection of \"" + ToQString(m_name) +
                        "\" has changes that are not saved.",
                    QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, this);
    box.setObjectName("unsaved");
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText("Save them before going on?");
    box.setDefaultButton(QMessageBox::Save);
    switch (box.exec())
    {
    case QMessageBox::Save: return m_actions.Run([this] { Save(); });
    case QMessageBox::Discard: return true;
    default: return false;
    }
}

void ParameterView::Reload()
{
    const bool wasChanged = IsChanged();
    const auto tags = SelectedTags();
    Open();
    if (wasChanged)
        SelectOnly({tags.begin(), tags.end()});
    ShowSelection();
}

void ParameterView::SelectOnly(const std::set<std::string>& tags)
{
    STRLocusTagSelector& selector = m_page->Selector();
    MoveRows(selector.gridSelected, selector.cmdRemoveSingle,
             [&](const std::string& tag) { return !tags.contains(tag); });
    MoveRows(selector.gridAvailable, selector.cmdAddSingle,
             [&](const std::string& tag) { return tags.contains(tag); });
}

std::vector<std::string> ParameterView::SelectedTags() const
{
    const GridModel& rows = ModelOf(m_page->Selector().gridSelected.Object());
    std::vector<std::string> tags;
    for (std::int32_t row = 1; row <= rows.Rows(); ++row)
        tags.push_back(rows.Cell(row, tagColumn));
    return tags;
}

std::vector<std::string> ParameterView::HighlightedTags() const
{
    std::vector<std::string> tags;
    for (const auto* grid : {&m_page->Selector().gridAvailable, &m_page->Selector().gridSelected})
    {
        const GridModel& rows = ModelOf(grid->Object());
        for (const std::int32_t row : rows.HighlightedRows())
            tags.push_back(rows.Cell(row, tagColumn));
    }
    return tags;
}

std::vector<std::shared_ptr<Locus>> ParameterView::SelectedLoci() const
{
    const auto selected = m_page->Selector().SelectedLocusTags();
    return {selected.begin(), selected.end()};
}

void ParameterView::Select(const std::vector<std::string>& tags, bool isSelected)
{
    STRLocusTagSelector& selector = m_page->Selector();
    const std::set<std::string> moved(tags.begin(), tags.end());
    const auto moves = [&](const std::string& tag) { return moved.contains(tag); };
    if (isSelected)
        MoveRows(selector.gridAvailable, selector.cmdAddSingle, moves);
    else
        MoveRows(selector.gridSelected, selector.cmdRemoveSingle, moves);
}

} // namespace Tamrivo
