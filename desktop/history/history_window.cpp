#include "desktop/history/history_window.h"

#include "desktop/common/actions.h"
#include "desktop/common/long_work.h"
#include "desktop/common/settings.h"
#include "desktop/common/text.h"
#include "desktop/history/history_list.h"
#include "host/loci/progress.h"
#include "host/store/content_difference.h"
#include "host/store/store.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSplitter>
#include <QVBoxLayout>

#include <algorithm>

namespace Tamrivo
{

namespace
{

/// More changes than a person reads; the filter finds older ones.
constexpr std::size_t MostRecords = 1000;

QTreeWidget* NewDifferenceTable(QWidget* parent)
{
    auto* table = new QTreeWidget(parent);
    table->setObjectName("historyDifferences");
    table->setAccessibleName("What was changed");
    table->setHeaderLabels({"What", "Before", "After"});
    table->setRootIsDecorated(false);
    table->setAlternatingRowColors(true);
    table->setUniformRowHeights(true);
    return table;
}

QLineEdit* NewFilter(const char* name, const char* words, QWidget* parent)
{
    auto* edit = new QLineEdit(parent);
    edit->setObjectName(name);
    edit->setAccessibleName(words);
    edit->setPlaceholderText(words);
    edit->setClearButtonEnabled(true);
    return edit;
}

} // namespace

HistoryWindow::HistoryWindow(Store& store, const Actions& actions, Restored onRestored)
    : QWidget(nullptr, Qt::Window),
      m_store(store),
      m_actions(actions),
      m_onRestored(std::move(onRestored)),
      m_scope(new QComboBox(this)),
      m_name(NewFilter("historyName", "Tag or name", this)),
      m_by(NewFilter("historyBy", "By whom", this)),
      m_since(NewFilter("historySince", "Since, such as 2026-11-23", this)),
      m_list(new HistoryList(this)),
      m_differences(NewDifferenceTable(this)),
      m_status(new QLabel(this)),
      m_restore(new QPushButton("&Restore", this))
{
    setObjectName("history");
    setWindowTitle("History");
    m_status->setObjectName("historyStatus");
    m_restore->setObjectName("restore");
    m_restore->setToolTip("Store the chosen state of the locus as a new change");

    auto* parts = new QSplitter(Qt::Vertical, this);
    parts->addWidget(m_list);
    parts->addWidget(m_differences);
    parts->setStretchFactor(0, 2);
    parts->setStretchFactor(1, 1);
    auto* bottom = new QHBoxLayout;
    bottom->addWidget(m_status, 1);
    bottom->addWidget(m_restore);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(MakeTopRow());
    layout->addWidget(parts, 1);
    layout->addLayout(bottom);

    connect(m_list, &QTreeWidget::itemSelectionChanged, this,
            [this] { m_actions.Run([this] { ShowChosen(); }); });
    connect(m_restore, &QPushButton::clicked, this,
            [this] { m_actions.Run([this] { Restore(); }); });
    const int line = fontMetrics().lineSpacing();
    RestorePlace(*this, {64 * line, 36 * line});
}

HistoryWindow::~HistoryWindow()
{
    RememberPlace(*this);
}

QLayout* HistoryWindow::MakeTopRow()
{
    m_scope->setObjectName("historyScope");
    m_scope->setAccessibleName("Show");
    m_scope->addItems({"All changes", "Deleted loci"});
    auto* row = new QHBoxLayout;
    for (QWidget* widget : std::initializer_list<QWidget*>{m_scope, m_name, m_by, m_since})
        row->addWidget(widget);
    const auto load = [this] { m_actions.Run([this] { Load(); }); };
    connect(m_scope, &QComboBox::activated, this, load);
    for (const QLineEdit* edit : {m_name, m_by, m_since})
        connect(edit, &QLineEdit::editingFinished, this, load);
    return row;
}

void HistoryWindow::ShowAll()
{
    ShowWindow(AllChanges, {});
}

void HistoryWindow::ShowLocus(const std::string& tag)
{
    ShowWindow(AllChanges, ToQString(tag));
}

void HistoryWindow::ShowDeleted()
{
    ShowWindow(DeletedLoci, {});
}

void HistoryWindow::ShowWindow(Scope scope, const QString& name)
{
    m_scope->setCurrentIndex(scope);
    m_name->setText(name);
    m_by->clear();
    m_since->clear();
    show();
    raise();
    activateWindow();
    Load();
}

HistoryFilter HistoryWindow::Filter() const
{
    HistoryFilter filter;
    filter.Name = FromQString(m_name->text().trimmed());
    filter.By = FromQString(m_by->text().trimmed());
    if (const QString since = m_since->text().trimmed(); !since.isEmpty())
        filter.Since = MomentOf(FromQString(since), OfDay::Beginning);
    return filter;
}

std::vector<HistoryRecord> HistoryWindow::Deleted()
{
    const HistoryFilter filter = Filter();
    const QString name = ToQString(filter.Name);
    std::vector<HistoryRecord> deleted;
    History(m_store.SharedDatabase())
        .ForEachLast(HistoryKind::Locus, [&](const HistoryRecord& record) {
            const bool isBy =
                filter.By.empty() || filter.By == record.Who || filter.By == record.ServerUser;
            if (record.Operation == HistoryOperation::Deleted && isBy &&
                (!filter.Since || record.When() >= *filter.Since) &&
                ToQString(record.Name).contains(name, Qt::CaseInsensitive))
                deleted.push_back(record);
        });
    std::ranges::sort(deleted, std::ranges::greater(), &HistoryRecord::Number);
    return deleted;
}

void HistoryWindow::Load()
{
    const LongWork work(m_store, "Reading the history...", this);
    m_list->Show(m_scope->currentIndex() == DeletedLoci
                     ? Deleted()
                     : History(m_store.SharedDatabase()).Newest(Filter(), MostRecords));
    const std::size_t count = m_list->Records().size();
    m_status->setText(
        count == 0 ? QString("There is no such change.")
        : count == MostRecords
            ? QString("The newest %1 changes. Older ones: say whose, or which name.").arg(count)
            : QString("%1 change(s)").arg(count));
    ShowChosen();
}

void HistoryWindow::ShowChosen()
{
    m_differences->clear();
    const auto chosen = m_list->Chosen();
    m_restore->setEnabled(!m_store.IsReadOnly() && !chosen.empty() &&
                          std::ranges::all_of(chosen, [](const HistoryRecord* record) {
                              return record->Kind == HistoryKind::Locus;
                          }));
    if (chosen.size() != 1)
        return;
    const auto before = History(m_store.SharedDatabase()).Before(*chosen.front());
    QList<QTreeWidgetItem*> rows;
    for (const auto& [what, old, now] :
         ContentDifferences(before ? before->Content : "", chosen.front()->Content))
        rows.append(
            new QTreeWidgetItem(QStringList{ToQString(what), ToQString(old), ToQString(now)}));
    m_differences->addTopLevelItems(rows);
    m_differences->resizeColumnToContents(0);
    m_differences->resizeColumnToContents(1);
}

std::vector<HistoryRecord> HistoryWindow::StatesOfChosen()
{
    std::vector<HistoryRecord> states;
    for (const HistoryRecord* record : m_list->Chosen())
    {
        if (!record->Content.empty())
            states.push_back(*record);
        else if (auto before = History(m_store.SharedDatabase()).Before(*record))
            states.push_back(std::move(*before));
    }
    return states;
}

void HistoryWindow::Restore()
{
    const std::vector<HistoryRecord> states = StatesOfChosen();
    std::vector<std::string> tags;
    try
    {
        m_store.Together([&] {
            tags.clear();
            for (const HistoryRecord& state : states)
                tags.push_back(m_store.RestoreLocus(state, ""));
        });
    }
    catch (const Failure& failure)
    {
        if (failure.Record().Number != StoreError::NameTaken || states.size() != 1)
            throw;
        tags = {RestoreUnderAnotherTag(states.front())};
    }
    Load();
    m_onRestored(tags);
}

std::string HistoryWindow::RestoreUnderAnotherTag(const HistoryRecord& state)
{
    bool isGiven = false;
    const QString tag = QInputDialog::getText(
        this, "Restore", "Another locus has the tag " + ToQString(state.Name) + " now. Restore as:",
        QLineEdit::Normal, ToQString(state.Name + " restored"), &isGiven);
    if (!isGiven)
        throw Cancelled();
    return m_store.RestoreLocus(state, FromQString(tag.trimmed()));
}

} // namespace Tamrivo
