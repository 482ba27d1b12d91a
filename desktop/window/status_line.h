#pragma once

#include <QLabel>

namespace Tamrivo
{

class Workbench;

/// Tells what is chosen, and which loci of the open parameter overlap.
class StatusLine : public QLabel
{
public:
    /// The workbench must outlive the line.
    StatusLine(const Workbench& workbench, QWidget* parent);

private:
    void Show();
    void FindOverlaps();

    const Workbench& m_workbench;
    QString m_overlaps;
};

} // namespace Tamrivo
