#include "desktop/import/import_check.h"

#include "desktop/common/long_work.h"
#include "host/checks/plan_check.h"

#include <QElapsedTimer>

#include <utility>

namespace Tamrivo
{

ImportCheck::ImportCheck(QObject* parent) : QObject(parent)
{
    m_timer.setInterval(0);
    connect(&m_timer, &QTimer::timeout, this, &ImportCheck::GoOn);
}

void ImportCheck::Check(const ImportPlan& plan)
{
    m_run = std::make_unique<CheckRun>(CheckSourceOf(plan), AllCheckRules());
    m_timer.start();
}

void ImportCheck::Stop()
{
    m_timer.stop();
    m_run.reset();
}

void ImportCheck::GoOn()
{
    constexpr int slice = 8; // ms; half a frame
    // The plan is being carried out.
    if (LongWork::IsAtWork())
        return;
    QElapsedTimer time;
    time.start();
    while (time.elapsed() < slice)
    {
        if (m_run->Step())
            continue;
        const auto run = std::move(m_run);
        Stop();
        emit Finished(run->Found());
        return;
    }
}

} // namespace Tamrivo
