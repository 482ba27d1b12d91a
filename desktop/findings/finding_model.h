#pragma once

#include "host/checks/check_rules.h"

#include <QAbstractTableModel>

#include <vector>

namespace Tamrivo
{

/// Findings for Qt's views, a row each.
class FindingModel : public QAbstractTableModel
{
public:
    enum Column
    {
        Rule, ///< With its severity.
        Tag,
        Place, ///< Allele or field.
        Message,
    };

    using QAbstractTableModel::QAbstractTableModel;

    void Show(std::vector<Finding> found);
    const Finding& At(int row) const { return m_found[static_cast<std::size_t>(row)]; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    std::vector<Finding> m_found;
};

} // namespace Tamrivo
