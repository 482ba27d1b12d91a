#pragma once

#include "platform/alleles/pane_user.h"

#include <QAbstractTableModel>

#include <functional>

namespace Tamrivo
{

class Actions;

/// The rows of the allele pane for Qt's views. An edit goes through the pane, which may refuse it.
class AlleleTableModel : public QAbstractTableModel
{
public:
    AlleleTableModel(User::AllelePaneControl& pane, const Actions& actions, QObject* parent);

    /// Takes over what has changed in the pane.
    void Refresh();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

    /// An edit has moved its row to this place (0-based).
    std::function<void(int row)> onMoved;

private:
    QString ProblemsOf(int row) const;

    User::AllelePaneControl& m_control;
    const Actions& m_actions;
    AllelePane& m_pane;
    int m_rows = 0;
};

} // namespace Tamrivo
