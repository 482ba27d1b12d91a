#pragma once

#include <string>

namespace Tamrivo
{

/// The address "postgresql://..." as the "keyword='value'" pairs that SOCI asks for. A server that
/// doesn't answer is waited for five seconds, unless the address says otherwise. Raises
/// `ErrorNumber::InvalidArgument` for a text that is no such address.
std::string ConnectionText(const std::string& address);

} // namespace Tamrivo
