#include "desktop/findings/finding_model.h"

#include "desktop/common/text.h"
#include "host/reports/finding_list.h"

#include <QApplication>
#include <QStyle>

#include <utility>

namespace Tamrivo
{

namespace
{

struct ModelColumn
{
    const char* Title;
    QString (*Text)(const Finding&);
};

constexpr ModelColumn modelColumns[] = {
    {"Rule", [](const Finding& finding) { return ToQString(finding.Rule->Name); }},
    {"Tag", [](const Finding& finding) { return ToQString(finding.Tag); }},
    {"Allele or field",
     [](const Finding& finding) {
         return ToQString(finding.Allele.empty() ? finding.Field : finding.Allele);
     }},
    {"What is wrong", [](const Finding& finding) { return ToQString(finding.Message); }},
};

} // namespace

void FindingModel::Show(std::vector<Finding> found)
{
    if (found == m_found)
        return;
    beginResetModel();
    m_found = std::move(found);
    endResetModel();
}

int FindingModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_found.size());
}

int FindingModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(std::size(modelColumns));
}

QVariant FindingModel::data(const QModelIndex& index, int role) const
{
    const Finding& finding = At(index.row());
    const bool isError = finding.Rule->Weight == Severity::Error;
    switch (role)
    {
    case Qt::DisplayRole: return modelColumns[index.column()].Text(finding);
    case Qt::ToolTipRole: return ToQString(finding.Message);
    case Qt::AccessibleTextRole:
        return index.column() == Rule ? ToQString(SeverityText(finding.Rule->Weight)) + " " +
                                            modelColumns[Rule].Text(finding)
                                      : QVariant();
    case Qt::DecorationRole:
        return index.column() == Rule
                   ? QVariant(QApplication::style()->standardIcon(
                         isError ? QStyle::SP_MessageBoxWarning : QStyle::SP_MessageBoxInformation))
                   : QVariant();
    default: return {};
    }
}

QVariant FindingModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole || orientation != Qt::Horizontal)
        return {};
    return modelColumns[section].Title;
}

} // namespace Tamrivo
