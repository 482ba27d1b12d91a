#pragma once

#include "host/framework/host_application.h"

#include <string>

namespace Tamrivo
{

class DesktopFrontEnd;

/// An open store with the host on it, which is the front end's host for as long.
class StoreSession
{
public:
    /// Raises what `Store` raises at its opening.
    StoreSession(const std::string& address, DesktopFrontEnd& frontEnd);
    StoreSession(const StoreSession&) = delete;
    StoreSession& operator=(const StoreSession&) = delete;
    ~StoreSession();

    HostApplication& Host() { return m_host; }

private:
    DesktopFrontEnd& m_frontEnd;
    Store m_store;
    HostApplication m_host;
};

} // namespace Tamrivo
