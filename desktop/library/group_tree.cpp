#include "desktop/library/group_tree.h"

#include "desktop/common/dye_shade.h"
#include "desktop/common/icons.h"
#include "desktop/common/text.h"
#include "desktop/library/library_model.h"

#include <QContextMenuEvent>
#include <QDragEnterEvent>
#include <QHeaderView>
#include <QMenu>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QTimer>

namespace Tamrivo
{

namespace
{

constexpr int nameColumn = 0;
constexpr int countColumn = 1;
constexpr int kindRole = Qt::UserRole;
constexpr int nameRole = Qt::UserRole + 1;
constexpr int noGroup = -1; ///< Kind of a heading.

/// A kind of group: its heading, and its icon.
struct KindText
{
    LocusGroup::Kind Kind;
    const char* Heading; ///< Empty for a group that stands alone under `Title`.
    const char* Title;
    const char* Icon;
};

constexpr KindText kinds[] = {
    {LocusGroup::Kind::All, "", "Library", "x-office-spreadsheet"},
    {LocusGroup::Kind::Recent, "", "Recent", "document-revert"},
    {LocusGroup::Kind::Problems, "", "Problems", "dialog-warning"},
    {LocusGroup::Kind::Deleted, "", "Deleted", "edit-delete"},
    {LocusGroup::Kind::Panel, "Panels", "", ""},
    {LocusGroup::Kind::Dye, "Dyes", "", ""},
    {LocusGroup::Kind::Project, "Projects", "", ""},
    {LocusGroup::Kind::Parameter, "Parameters", "", ""},
    {LocusGroup::Kind::Search, "Searches", "", "edit-find"},
};

const KindText& TextOf(LocusGroup::Kind kind)
{
    return *std::ranges::find(kinds, kind, &KindText::Kind);
}

LocusGroup GroupOf(const QTreeWidgetItem& item)
{
    return {static_cast<LocusGroup::Kind>(item.data(nameColumn, kindRole).toInt()),
            item.data(nameColumn, nameRole).toString()};
}

bool IsHeading(const QTreeWidgetItem& item)
{
    return item.data(nameColumn, kindRole).toInt() == noGroup;
}

QString TipOf(const LocusGroup& group, const QString& text)
{
    switch (group.What)
    {
    case LocusGroup::Kind::Recent: return QString("Changed in the last %1 days").arg(RecentDays);
    case LocusGroup::Kind::Problems: return "A check finds something in them";
    case LocusGroup::Kind::Deleted: return "Click to see what was deleted, and bring some back";
    default: return text;
    }
}

} // namespace

GroupTree::GroupTree(QWidget* parent) : QTreeWidget(parent)
{
    setObjectName("groups");
    setAccessibleName("Groups of loci");
    setColumnCount(2);
    setHeaderHidden(true);
    setRootIsDecorated(false);
    setIndentation(fontMetrics().averageCharWidth() * 2);
    setUniformRowHeights(true);
    setDragDropMode(QAbstractItemView::DropOnly);
    setDropIndicatorShown(true);
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(nameColumn, QHeaderView::Stretch);
    header()->setSectionResizeMode(countColumn, QHeaderView::ResizeToContents);
    // A question may follow, which must not come in the middle of a press of the mouse.
    m_chosenChanged.setSingleShot(true);
    m_chosenChanged.setInterval(0);
    connect(&m_chosenChanged, &QTimer::timeout, this,
            [this] { emit GroupChosen(LocusGroup(m_chosen)); });
    connect(this, &QTreeWidget::itemSelectionChanged, this, &GroupTree::TakeChosen);
    // The chosen group can be gone back to when a search or the selector has replaced it.
    connect(this, &QTreeWidget::itemClicked, this, &GroupTree::TakeChosen);
    const auto askForDeleted = [this](const QTreeWidgetItem* item) {
        if (!IsHeading(*item) && GroupOf(*item).What == LocusGroup::Kind::Deleted)
            emit DeletedAsked();
    };
    connect(this, &QTreeWidget::itemClicked, this, askForDeleted);
    connect(this, &QTreeWidget::itemActivated, this, askForDeleted);
}

void GroupTree::TakeChosen()
{
    const auto chosen = selectedItems();
    if (m_isShowing || chosen.isEmpty())
        return;
    const LocusGroup group = GroupOf(*chosen.front());
    // The table goes on to show the group before.
    if (group.What == LocusGroup::Kind::Deleted)
        return;
    m_chosen = group;
    m_chosenChanged.start();
}

QTreeWidgetItem* GroupTree::HeadingFor(LocusGroup::Kind kind)
{
    QTreeWidgetItem*& heading = m_headings[kind];
    if (heading == nullptr)
    {
        heading = new QTreeWidgetItem(this, {TextOf(kind).Heading});
        heading->setData(nameColumn, kindRole, noGroup);
        heading->setFlags(Qt::ItemIsEnabled);
        heading->setFirstColumnSpanned(true);
        heading->setExpanded(true);
    }
    return heading;
}

void GroupTree::Show(const std::vector<CountedGroup>& groups, const Library& library)
{
    const QScopedValueRollback showing(m_isShowing, true);
    m_dyes = library.LabDyes();
    clear();
    m_headings.clear();
    for (const auto& [group, loci] : groups)
    {
        const KindText& text = TextOf(group.What);
        auto* item = *text.Heading == '\0' ? new QTreeWidgetItem(this)
                                           : new QTreeWidgetItem(HeadingFor(group.What));
        item->setText(nameColumn, *text.Heading == '\0' ? QString(text.Title) : group.Name);
        item->setToolTip(nameColumn, TipOf(group, item->text(nameColumn)));
        item->setText(countColumn, loci ? QString::number(*loci) : QString());
        item->setTextAlignment(countColumn, Qt::AlignRight | Qt::AlignVCenter);
        item->setData(nameColumn, kindRole, static_cast<int>(group.What));
        item->setData(nameColumn, nameRole, group.Name);
        if (*text.Icon != '\0')
            item->setIcon(nameColumn, ThemeIcon(text.Icon));
    }
    Paint();
    Choose(m_chosen);
}

QTreeWidgetItem* GroupTree::ItemOf(const LocusGroup& group) const
{
    for (QTreeWidgetItemIterator at(const_cast<GroupTree*>(this)); *at != nullptr; ++at)
    {
        if (!IsHeading(**at) && GroupOf(**at) == group)
            return *at;
    }
    return nullptr;
}

void GroupTree::Choose(const LocusGroup& group)
{
    const QScopedValueRollback showing(m_isShowing, true);
    QTreeWidgetItem* item = ItemOf(group);
    if (item == nullptr)
        item = topLevelItem(0);
    m_chosen = item == nullptr ? LocusGroup() : GroupOf(*item);
    setCurrentItem(item);
}

void GroupTree::MarkOpen(const QString& parameter, bool isChanged, std::size_t loci)
{
    for (QTreeWidgetItemIterator at(this); *at != nullptr; ++at)
    {
        if (IsHeading(**at))
            continue;
        const LocusGroup group = GroupOf(**at);
        if (group.What != LocusGroup::Kind::Parameter)
            continue;
        const bool isOpen = group.Name.compare(parameter, Qt::CaseInsensitive) == 0;
        QFont font = (*at)->font(nameColumn);
        font.setBold(isOpen);
        (*at)->setFont(nameColumn, font);
        (*at)->setText(nameColumn, group.Name + (isOpen && isChanged ? "*" : ""));
        if (isOpen)
            (*at)->setText(countColumn, QString::number(loci));
    }
}

QSize GroupTree::sizeHint() const
{
    return {30 * fontMetrics().averageCharWidth(), QTreeWidget::sizeHint().height()};
}

void GroupTree::changeEvent(QEvent* event)
{
    QTreeWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        Paint();
}

void GroupTree::Paint()
{
    const QBrush faint = palette().brush(QPalette::PlaceholderText);
    for (QTreeWidgetItemIterator at(this); *at != nullptr; ++at)
    {
        (*at)->setForeground(IsHeading(**at) ? nameColumn : countColumn, faint);
        const LocusGroup group = GroupOf(**at);
        if (IsHeading(**at) || group.What != LocusGroup::Kind::Dye)
            continue;
        const auto dye = m_dyes.OfColor(FromQString(group.Name));
        (*at)->setIcon(nameColumn, DyeSwatch(m_dyes, *dye, palette(), fontMetrics().ascent()));
    }
}

void GroupTree::contextMenuEvent(QContextMenuEvent* event)
{
    const QTreeWidgetItem* item = currentItem();
    if (item == nullptr || IsHeading(*item))
        return;
    const LocusGroup::Kind kind = GroupOf(*item).What;
    const QList<QAction*> commands = kind == LocusGroup::Kind::Parameter ? ParameterCommands
                                     : kind == LocusGroup::Kind::Search  ? SearchCommands
                                                                         : QList<QAction*>();
    if (!commands.isEmpty())
        QMenu::exec(commands, event->globalPos(), nullptr, this);
}

QTreeWidgetItem* GroupTree::DropTarget(const QDropEvent& event) const
{
    QTreeWidgetItem* item = itemAt(event.position().toPoint());
    const bool isTarget = item != nullptr && event.mimeData()->hasFormat(LibraryModel::TagsType) &&
                          !IsHeading(*item) && GroupOf(*item).What == LocusGroup::Kind::Parameter;
    return isTarget ? item : nullptr;
}

void GroupTree::dragEnterEvent(QDragEnterEvent* event)
{
    // What can't be taken here may be for the window.
    if (event->mimeData()->hasFormat(LibraryModel::TagsType))
        event->acceptProposedAction();
    else
        event->ignore();
}

void GroupTree::dragMoveEvent(QDragMoveEvent* event)
{
    if (DropTarget(*event) != nullptr)
        event->acceptProposedAction();
    else
        event->ignore();
}

void GroupTree::dropEvent(QDropEvent* event)
{
    const QTreeWidgetItem* target = DropTarget(*event);
    if (target == nullptr)
        return event->ignore();
    std::vector<std::string> tags;
    for (const QByteArray& tag : event->mimeData()->data(LibraryModel::TagsType).split('\n'))
    {
        if (!tag.isEmpty())
            tags.push_back(tag.toStdString());
    }
    event->acceptProposedAction();
    emit LociDropped(FromQString(GroupOf(*target).Name), tags);
}

} // namespace Tamrivo
