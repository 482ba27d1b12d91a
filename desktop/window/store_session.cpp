#include "desktop/window/store_session.h"

#include "desktop/front_end/desktop_front_end.h"
#include "desktop/history/reason_question.h"

namespace Tamrivo
{

StoreSession::StoreSession(const std::string& address, DesktopFrontEnd& frontEnd)
    : m_frontEnd(frontEnd), m_store(address), m_host(m_store, frontEnd)
{
    AskForReasons(m_store);
    m_frontEnd.SetHost(&m_host);
}

StoreSession::~StoreSession()
{
    m_frontEnd.SetHost(nullptr);
}

} // namespace Tamrivo
