#pragma once

namespace Tamrivo
{

/// Statuses that the program ends with.
namespace ExitStatus
{
inline constexpr int Done = 0;
inline constexpr int Failed = 1; ///< Refused or failed; the reason stands on standard error.
inline constexpr int Usage = 2;  ///< The command line itself is wrong.
} // namespace ExitStatus

} // namespace Tamrivo
