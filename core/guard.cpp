#include "core/guard.h"

#include "core/process.h"

namespace Tamrivo
{

void Guard::Handle(const ErrorRecord& error)
{
    m_reporter.ReportError(ApplicationTitle, m_className, m_procedureName, error, "",
                           m_form != Form::Propagating);
    if (m_form != Form::Reporting && m_reporter.DebugMode())
    {
        m_armed = false;
        if (m_reporter.DebugBreak(ProcessNumber()))
            return;
    }
    if (m_form == Form::Propagating)
        throw Failure(error);
    throw Ended{this};
}

} // namespace Tamrivo
