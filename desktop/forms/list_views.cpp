#include "desktop/forms/list_views.h"

#include "controls/user.h"
#include "desktop/common/actions.h"
#include "desktop/common/text.h"
#include "desktop/forms/appearance.h"

#include <QAbstractListModel>
#include <QStyle>
#include <QWheelEvent>

namespace Tamrivo
{

ComboView::ComboView(ComboBox& combo, QWidget& parent, const Actions& actions)
    : QComboBox(&parent), m_combo(combo)
{
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    connect(this, &QComboBox::activated, this, [this, &actions](int position) {
        if (position != m_combo.ListIndex())
            actions.Run([&] { User::Choose(m_combo, position); });
        Refresh();
    });
}

bool ComboView::ShowsEntries() const
{
    if (count() != m_combo.ListCount())
        return false;
    for (int i = 0; i < count(); ++i)
    {
        if (itemText(i) != ToQString(m_combo.List(i)))
            return false;
    }
    return true;
}

void ComboView::Refresh()
{
    ApplyReach(*this, m_combo);
    if (!ShowsEntries())
    {
        clear();
        for (int i = 0; i < m_combo.ListCount(); ++i)
            addItem(ToQString(m_combo.List(i)));
    }
    setCurrentIndex(m_combo.ListIndex());
}

QSize ComboView::LeastSize() const
{
    return {0, sizeHint().height()};
}

void ComboView::wheelEvent(QWheelEvent* event)
{
    // Scrolling the page must not change a choice that the pointer happens to pass.
    if (hasFocus())
        QComboBox::wheelEvent(event);
    else
        event->ignore();
}

class EntryModel : public QAbstractListModel
{
public:
    EntryModel(const ListBox& list, QObject* parent) : QAbstractListModel(parent), m_list(list) {}

    int rowCount(const QModelIndex& parent) const override
    {
        return parent.isValid() ? 0 : m_shown;
    }

    QVariant data(const QModelIndex& index, int role) const override
    {
        return role == Qt::DisplayRole ? ToQString(m_list.List(index.row())) : QVariant();
    }

    void Refresh()
    {
        if (m_shown == m_list.ListCount())
            return;
        beginResetModel();
        m_shown = m_list.ListCount();
        endResetModel();
    }

private:
    const ListBox& m_list;
    int m_shown = 0;
};

ListView::ListView(ListBox& list, QWidget& parent, const Actions& actions)
    : QListView(&parent), m_list(list), m_actions(actions), m_model(new EntryModel(list, this))
{
    setModel(m_model);
    setUniformItemSizes(true);
    setTabKeyNavigation(false);
    connect(this, &QListView::clicked, this,
            [this](const QModelIndex& index) { Choose(index.row()); });
    connect(selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& index) {
                // A press of the mouse becomes a click with its release.
                if (hasFocus() && index.isValid() && state() != DragSelectingState)
                    Choose(index.row());
            });
}

void ListView::Choose(int row)
{
    if (row != m_list.ListIndex())
        m_actions.Run([&] { User::Choose(m_list, row); });
}

void ListView::Refresh()
{
    ApplyReach(*this, m_list);
    m_model->Refresh();
    const QModelIndex chosen = m_model->index(m_list.ListIndex(), 0);
    if (currentIndex() != chosen)
        setCurrentIndex(chosen);
}

QSize ListView::LeastSize() const
{
    return {0, 3 * fontMetrics().lineSpacing()};
}

} // namespace Tamrivo
