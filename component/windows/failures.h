#pragma once

#include "component/com.h"
#include "core/error.h"

namespace Tamrivo
{

// Failures as the platform passes them on.

/// The number where that is negative, else 0x800A0000 plus its lower half, as automation has it.
HRESULT ResultOf(const ErrorRecord& error);
/// Undoes `ResultOf`.
std::int32_t NumberOf(HRESULT result);

/// The record of the exception that is being handled, of whatever type it is.
ErrorRecord RecordOfCurrent();

/// Tells the thread's error object, and gives the result code. No record is told too: the memory
/// for it may be lacking.
HRESULT Raise(const ErrorRecord& error);

/// The record as an answer of `IDispatch::Invoke`.
void Fill(EXCEPINFO& info, const ErrorRecord& error);

/// What a call of a client's object has failed of; takes the texts out of `info`.
ErrorRecord RecordOf(HRESULT result, EXCEPINFO& info, std::string_view member);

} // namespace Tamrivo
