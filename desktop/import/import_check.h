#pragma once

#include "host/checks/check_run.h"

#include <QObject>
#include <QTimer>

#include <memory>
#include <vector>

namespace Tamrivo
{

struct ImportPlan;

/// A check of the loci that an import would leave in the store. It goes on between events, a few
/// milliseconds at a time, so that the preview of a big file is there at once.
class ImportCheck : public QObject
{
    Q_OBJECT

public:
    explicit ImportCheck(QObject* parent);

    /// Begins anew. The plan must stay as it is until `Stop` or the signal.
    void Check(const ImportPlan& plan);
    void Stop();

    bool IsChecking() const { return m_run != nullptr; }

signals:
    /// @param found by locus in the plan's order
    void Finished(std::vector<Finding> found);

private:
    void GoOn();

    std::unique_ptr<CheckRun> m_run;
    QTimer m_timer;
};

} // namespace Tamrivo
