#include "desktop/findings/finding_watch.h"

#include "core/error.h"
#include "desktop/common/long_work.h"
#include "desktop/common/text.h"
#include "host/checks/store_check.h"

#include <QElapsedTimer>

#include <utility>

namespace Tamrivo
{

FindingWatch::FindingWatch(QObject* parent) : QObject(parent)
{
    m_timer.setInterval(0);
    connect(&m_timer, &QTimer::timeout, this, &FindingWatch::GoOn);
}

void FindingWatch::Check(Store& store)
{
    m_run.reset();
    m_store = &store;
    m_failure.clear();
    m_timer.start();
    emit Advanced();
}

void FindingWatch::Stop()
{
    m_timer.stop();
    m_run.reset();
    m_store = nullptr;
    m_failure.clear();
    m_found.clear();
    emit Changed();
}

int FindingWatch::Percent() const
{
    constexpr std::size_t hundred = 100;
    return m_run && m_run->Total() > 0 ? static_cast<int>(hundred * m_run->Done() / m_run->Total())
                                       : 0;
}

void FindingWatch::GoOn()
{
    constexpr int slice = 8; // ms; half a frame
    // The store is in the middle of something.
    if (LongWork::IsAtWork())
        return;
    try
    {
        if (!m_run)
            m_run = std::make_unique<CheckRun>(CheckSourceOf(*m_store), AllCheckRules());
        QElapsedTimer time;
        time.start();
        while (time.elapsed() < slice)
        {
            if (!m_run->Step())
                return Finish();
        }
    }
    catch (const Failure& failure)
    {
        m_timer.stop();
        m_run.reset();
        m_store = nullptr;
        m_failure = ToQString(failure.Record().Description);
    }
    emit Advanced();
}

void FindingWatch::Finish()
{
    m_timer.stop();
    m_store = nullptr;
    m_found = m_run->Found();
    m_run.reset();
    emit Changed();
}

} // namespace Tamrivo
