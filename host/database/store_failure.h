#pragma once

#include "core/error.h"

namespace Tamrivo
{

/// Numbers of the failures that the store raises besides those of `ErrorNumber`. Each failure's
/// description says what was not done, why, and what was kept.
namespace StoreError
{
/// The store is gone, was replaced, or its server or disk does not answer.
inline constexpr std::int32_t Unreachable = ErrorNumber::Application + 1;
/// Another program kept the store locked for more than five seconds.
inline constexpr std::int32_t Locked = ErrorNumber::Application + 2;
inline constexpr std::int32_t ReadOnly = ErrorNumber::Application + 3;
inline constexpr std::int32_t DiskFull = ErrorNumber::Application + 4;
/// What stands at the address is no store of this program, or is damaged.
inline constexpr std::int32_t NotAStore = ErrorNumber::Application + 5;
/// The store was written by a newer version of this program.
inline constexpr std::int32_t NewerVersion = ErrorNumber::Application + 6;
/// Another stored object has the tag or the name.
inline constexpr std::int32_t NameTaken = ErrorNumber::Application + 7;
/// No stored object has the tag or the name.
inline constexpr std::int32_t NotFound = ErrorNumber::Application + 8;
/// Someone else changed or deleted the object since it was read.
inline constexpr std::int32_t Conflict = ErrorNumber::Application + 9;
/// The connection was lost while a change was being made durable, and whether it was can't be told
/// before the store is reached again.
inline constexpr std::int32_t Unknown = ErrorNumber::Application + 11;
/// The store asks for the reason of each change, and none was given.
inline constexpr std::int32_t NoReason = ErrorNumber::Application + 12;
/// Any other failure of the database.
inline constexpr std::int32_t Database = ErrorNumber::Application + 10;
} // namespace StoreError

} // namespace Tamrivo
