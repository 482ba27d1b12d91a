#pragma once

#include "host/alleles/pane_user.h"

#include <QAbstractTableModel>

namespace Tamrivo
{

class Actions;

/// The rows of the allele pane for Qt's views. An edit goes through the pane, which may refuse it.
class AlleleTableModel : public QAbstractTableModel
{
public:
    AlleleTableModel(User::AllelePaneControl& pane, const Actions& actions, QObject* parent);

    /// Takes over what has changed in the pane. Selection, current cell and an open editor stay
    /// with their alleles.
    void Refresh();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

private:
    const Allele& AlleleAt(int row) const { return *m_rows[static_cast<std::size_t>(row)]; }
    int RowOf(const std::shared_ptr<Allele>& allele) const;
    /// The icon of a row in which something is wrong.
    QVariant MarkOf(int row) const;
    QVariant TruthOf(const QModelIndex& index, int role) const;
    void RemoveAllBut(const AlleleRows& rows);
    void Reorder(AlleleRows rows);
    void InsertMissing(const AlleleRows& rows);

    User::AllelePaneControl& m_control;
    const Actions& m_actions;
    AllelePane& m_pane;
    AlleleRows m_rows; ///< As the views know them.
};

} // namespace Tamrivo
