#pragma once

#include "host/panels/import_plan.h"

#include <QTreeWidget>

namespace Tamrivo
{

/// Shows in what a stored locus differs from its file: field by field, then allele by allele.
class DifferenceView : public QTreeWidget
{
public:
    explicit DifferenceView(QWidget* parent);

    /// Shows a locus; null, or one without differences, hides the view.
    void Show(const PlannedLocus* locus);
};

} // namespace Tamrivo
