#pragma once

#include "desktop/library/locus_group.h"

#include <QTimer>
#include <QTreeWidget>

#include <map>
#include <string>

namespace Tamrivo
{

/// The groups of a library with the number of their loci. Loci dropped on an analysis parameter are
/// added to it.
class GroupTree : public QTreeWidget
{
    Q_OBJECT

public:
    explicit GroupTree(QWidget* parent);

    /// Shows these groups and keeps the chosen one chosen, else the first.
    void Show(const std::vector<CountedGroup>& groups, const Library& library);
    const LocusGroup& Chosen() const { return m_chosen; }
    /// Chooses a group without raising `GroupChosen`.
    void Choose(const LocusGroup& group);
    /// Marks the parameter that is open, with the present number of its loci; an empty name for
    /// none.
    void MarkOpen(const QString& parameter, bool isChanged, std::size_t loci);

    /// What can be done with a parameter or a kept search; its menu.
    QList<QAction*> ParameterCommands;
    QList<QAction*> SearchCommands;

    QSize sizeHint() const override;

signals:
    /// Shortly after the person has chosen a group.
    void GroupChosen(const LocusGroup& group);
    /// The person wants to see the loci that were deleted.
    void DeletedAsked();
    void LociDropped(const std::string& parameter, const std::vector<std::string>& tags);

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    QTreeWidgetItem* HeadingFor(LocusGroup::Kind kind);
    QTreeWidgetItem* ItemOf(const LocusGroup& group) const;
    /// The parameter below the pointer; null for anything else.
    QTreeWidgetItem* DropTarget(const QDropEvent& event) const;
    /// Gives headings, counts and swatches the colours of the theme.
    void Paint();
    void TakeChosen();

    LocusGroup m_chosen;
    Dyes m_dyes;
    std::map<LocusGroup::Kind, QTreeWidgetItem*> m_headings;
    QTimer m_chosenChanged;
    bool m_isShowing = false;
};

} // namespace Tamrivo
