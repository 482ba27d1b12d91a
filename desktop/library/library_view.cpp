#include "desktop/library/library_view.h"

#include "desktop/common/actions.h"
#include "desktop/common/long_work.h"
#include "desktop/common/text.h"
#include "desktop/findings/finding_watch.h"
#include "desktop/findings/findings_view.h"
#include "desktop/help/first_use_tip.h"
#include "desktop/lanes/locus_lanes.h"
#include "desktop/library/library_model.h"
#include "desktop/library/library_table.h"
#include "desktop/library/search_line.h"
#include "host/library/search.h"
#include "host/loci/keys.h"
#include "host/store/history.h"
#include "host/store/store.h"

#include <QSettings>
#include <QSplitter>
#include <QVBoxLayout>

#include <algorithm>
#include <iterator>
#include <set>
#include <string_view>

namespace Tamrivo
{

namespace
{

constexpr const char* splitterKey = "library/splitter";

/// More changes than a person reads; the window with the history has all of them.
constexpr std::size_t MostChanges = 200;

} // namespace

LibraryView::LibraryView(const Actions& actions, QWidget* parent)
    : QWidget(parent),
      m_actions(actions),
      m_search(new SearchLine(this)),
      m_splitter(new QSplitter(Qt::Vertical, this)),
      m_model(new LibraryModel(this)),
      m_table(new LibraryTable(m_splitter)),
      m_preview(new LocusPreview(actions, m_splitter)),
      m_watch(new FindingWatch(this)),
      m_findings(new FindingsView(*m_watch, this))
{
    m_preview->Picture().allelesOf = [this](const std::string& tag) {
        return LaneAllelesOf(m_store->FindLocus(tag).get());
    };
    m_table->setModel(m_model);
    m_splitter->setStretchFactor(0, 3);
    m_splitter->setStretchFactor(1, 2);
    m_splitter->setChildrenCollapsible(false);
    m_splitter->restoreState(QSettings().value(splitterKey).toByteArray());
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(new FirstUseTip(
        "library",
        "Ctrl and Shift choose several loci. Ctrl+F searches, Ctrl+Shift+P finds any command, and "
        "F1 tells about where you are.",
        this));
    layout->addWidget(m_search);
    layout->addWidget(m_splitter, 1);

    m_preview->addTab(m_findings, "Findin&gs");
    connect(m_watch, &FindingWatch::Changed, this,
            [this] { m_actions.Run([this] { TakeFindings(); }); });
    connect(m_findings, &FindingsView::Chosen, this,
            [this](const Finding& finding) { ChooseTags({finding.Tag}); });
    m_chosenChanged.setSingleShot(true);
    m_chosenChanged.setInterval(0);
    connect(&m_chosenChanged, &QTimer::timeout, this, [this] {
        ShowPreview();
        emit Chosen();
    });
    connect(m_search, &SearchLine::Changed, this, [this] { m_actions.Run([this] { Filter(); }); });
    connect(m_search, &SearchLine::Entered, m_table, [this] {
        m_table->setFocus();
        if (m_table->ChosenRows().empty() && m_model->rowCount() > 0)
            m_table->ChooseRows({0});
    });
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this] { m_chosenChanged.start(); });
    connect(m_model, &LibraryModel::Ticked, this, &LibraryView::Ticked);
}

LibraryView::~LibraryView()
{
    QSettings().setValue(splitterKey, m_splitter->saveState());
}

void LibraryView::SetStore(Store* store)
{
    m_store = store;
    m_model->SetLibrary(nullptr);
    m_library.reset();
    m_watch->Stop();
    m_preview->Show({});
}

void LibraryView::Read()
{
    std::unordered_set<std::int32_t> chosen;
    for (const int row : m_table->ChosenRows())
        chosen.insert(m_model->LocusAt(row).LocusID);
    const LongWork work(*m_store, "Reading the loci...", this);
    auto library = std::make_unique<Library>(*m_store);
    m_model->SetLibrary(library.get());
    m_library = std::move(library);
    m_library->TakeFindings(m_watch->Found());
    m_watch->Check(*m_store);
    Filter();
    ChooseNumbers(chosen);
}

void LibraryView::TakeFindings()
{
    if (!m_library)
        return;
    m_library->TakeFindings(m_watch->Found());
    Filter();
}

void LibraryView::ShowFindings()
{
    std::unordered_set<std::string_view> found;
    for (const Finding& finding : m_watch->Found())
        found.insert(finding.Tag);
    std::set<std::string> shown;
    for (const std::uint32_t position : m_model->Positions())
    {
        const std::string& tag = m_library->Loci()[position].Tag;
        if (found.contains(tag))
            shown.insert(tag);
    }
    // What no locus has is missing from an analysis parameter.
    const bool withNoLocus = m_group.What == LocusGroup::Kind::All ||
                             m_group.What == LocusGroup::Kind::Parameter ||
                             m_group.What == LocusGroup::Kind::Problems;
    m_findings->ShowLoci(std::move(shown), withNoLocus);
}

void LibraryView::Filter()
{
    if (!m_library)
        return;
    std::unordered_set<std::int32_t> chosen;
    for (const int row : m_table->ChosenRows())
        chosen.insert(m_model->LocusAt(row).LocusID);
    const SearchResult found = Search(*m_library, FromQString(m_search->Text()));
    QStringList errors;
    for (const std::string& error : found.Errors)
        errors += ToQString(error);
    m_search->ShowErrors(errors);
    const auto ofGroup = LociOf(*m_library, m_group, m_selected);
    std::vector<std::uint32_t> shown;
    std::ranges::set_intersection(ofGroup, found.Loci, std::back_inserter(shown));
    m_model->Show(std::move(shown));
    ++m_lanesNumber;
    ShowFindings();
    ChooseNumbers(chosen);
    m_chosenChanged.start();
}

void LibraryView::ShowGroup(const LocusGroup& group)
{
    m_group = group;
    if (group.What == LocusGroup::Kind::Search)
        m_search->SetText(group.Name);
    Filter();
}

void LibraryView::SetSelected(std::optional<std::unordered_set<std::int32_t>> selected)
{
    m_selected = selected;
    m_model->SetTicks(std::move(selected));
    m_chosenChanged.start();
}

std::vector<std::string> LibraryView::ChosenTags() const
{
    return m_model->TagsAt(m_table->ChosenRows());
}

std::size_t LibraryView::ChosenCount() const
{
    return m_table->ChosenRows().size();
}

std::size_t LibraryView::ShownCount() const
{
    return m_model->Positions().size();
}

void LibraryView::ChooseTags(const std::vector<std::string>& tags)
{
    std::unordered_set<std::string> keys;
    for (const std::string& tag : tags)
        keys.insert(LookupKey(tag));
    std::unordered_set<std::int32_t> numbers;
    for (const std::uint32_t position : m_model->Positions())
    {
        const LibraryLocus& locus = m_library->Loci()[position];
        if (keys.contains(LookupKey(locus.Tag)))
            numbers.insert(locus.LocusID);
    }
    ChooseNumbers(numbers);
}

void LibraryView::ChooseNumbers(const std::unordered_set<std::int32_t>& numbers)
{
    std::vector<int> rows;
    if (!numbers.empty())
    {
        for (int row = 0; row < m_model->rowCount(); ++row)
        {
            if (numbers.contains(m_model->LocusAt(row).LocusID))
                rows.push_back(row);
        }
    }
    m_table->ChooseRows(rows);
}

QString LibraryView::SearchText() const
{
    return m_search->Text();
}

void LibraryView::SetSearch(const QString& search)
{
    m_search->SetText(search);
}

void LibraryView::FocusSearch()
{
    m_search->Focus();
}

std::vector<LaneLocus> LibraryView::LanesOfChoice() const
{
    std::vector<LaneLocus> lanes;
    const auto add = [&lanes](const LibraryLocus& locus) {
        lanes.push_back({locus.Tag, locus.DyeIndex, locus.FragStart, locus.FragEnd});
    };
    const auto chosen = m_table->ChosenRows();
    if (chosen.size() > 1)
    {
        for (const int row : chosen)
            add(m_model->LocusAt(row));
        return lanes;
    }
    for (const std::uint32_t position : m_model->Positions())
        add(m_library->Loci()[position]);
    return lanes;
}

void LibraryView::ShowPreview()
{
    if (!m_library)
        return m_preview->Show({});
    LocusPreview::Content content;
    const auto rows = m_table->ChosenRows();
    content.Count = rows.size();
    content.LabDyes = m_library->LabDyes();
    constexpr std::size_t mostLoaded = 2;
    auto loaded = rows;
    loaded.resize(std::min(loaded.size(), mostLoaded));
    const auto tags = m_model->TagsAt(loaded);
    content.Load = [this, tags](std::size_t chosen) { return m_store->FindLocus(tags.at(chosen)); };
    content.Changes = [this, tags] {
        HistoryFilter ofLocus;
        ofLocus.Kind = HistoryKind::Locus;
        ofLocus.Name = tags.front();
        return History(m_store->SharedDatabase()).Newest(ofLocus, MostChanges);
    };
    const bool lanesAreOfChosen = rows.size() > 1;
    if (lanesAreOfChosen || m_lanesAreOfChosen)
        ++m_lanesNumber;
    m_lanesAreOfChosen = lanesAreOfChosen;
    content.LanesNumber = m_lanesNumber;
    content.Lanes = [this] { return LanesOfChoice(); };
    // Where several are chosen, the lanes are theirs alone.
    m_preview->Picture().SetChosen(content.Count == 1 ? tags : std::vector<std::string>());
    m_preview->Show(std::move(content));
}

} // namespace Tamrivo
