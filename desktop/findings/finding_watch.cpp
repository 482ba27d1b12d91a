#include "desktop/findings/finding_watch.h"

#include "core/error.h"
#include "desktop/common/long_work.h"
#include "desktop/common/text.h"

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
    GiveUp();
    m_store = &store;
    m_failure.clear();
    m_timer.start();
    emit Advanced();
}

void FindingWatch::Stop()
{
    GiveUp();
    m_failure.clear();
    m_found.clear();
    emit Changed();
}

void FindingWatch::GiveUp()
{
    m_timer.stop();
    m_reading.reset();
    m_run.reset();
    m_store = nullptr;
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
        QElapsedTimer time;
        time.start();
        while (time.elapsed() < slice)
        {
            if (!Step())
                return Finish();
        }
    }
    catch (const Failure& failure)
    {
        GiveUp();
        m_failure = ToQString(failure.Record().Description);
    }
    emit Advanced();
}

bool FindingWatch::Step()
{
    if (m_run && !m_reading)
        return m_run->Step();
    if (m_run)
        m_reading.reset(); // With very many loci that is a step of its own.
    else if (!m_reading)
        m_reading = std::make_unique<CheckReading>(*m_store);
    else if (!m_reading->Step())
        m_run = std::make_unique<CheckRun>(m_reading->Source(), AllCheckRules());
    return true;
}

void FindingWatch::Finish()
{
    m_found = m_run->TakeFound();
    GiveUp();
    emit Changed();
}

} // namespace Tamrivo
