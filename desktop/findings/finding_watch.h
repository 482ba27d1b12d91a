#pragma once

#include "host/checks/check_run.h"
#include "host/checks/store_check.h"

#include <QObject>
#include <QTimer>

#include <memory>
#include <vector>

namespace Tamrivo
{

/// A check of all loci of a store that goes on between events, a few milliseconds at a time. While
/// it goes on, what the one before has found stays.
class FindingWatch : public QObject
{
    Q_OBJECT

public:
    explicit FindingWatch(QObject* parent);

    /// Begins anew. The store must stay until `Stop`.
    void Check(Store& store);
    /// Also forgets what was found.
    void Stop();

    const std::vector<Finding>& Found() const { return m_found; }
    bool IsChecking() const { return m_store != nullptr; }
    /// How much of the check is done, percent.
    int Percent() const;
    /// Why the last check has ended early; empty: it hasn't.
    const QString& FailureText() const { return m_failure; }

signals:
    /// The check goes on, or has stopped.
    void Advanced();
    /// There are other findings.
    void Changed();

private:
    void GoOn();
    /// Reads or checks some more; false: all is checked.
    bool Step();
    void Finish();
    void GiveUp();

    Store* m_store = nullptr;                ///< Being checked.
    std::unique_ptr<CheckReading> m_reading; ///< Goes before the run.
    std::unique_ptr<CheckRun> m_run;
    std::vector<Finding> m_found;
    QString m_failure;
    QTimer m_timer;
};

} // namespace Tamrivo
