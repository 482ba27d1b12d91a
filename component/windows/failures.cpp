#include "component/windows/failures.h"

#include "component/windows/text.h"

#include <algorithm>
#include <cstdio>
#include <new>
#include <utility>

namespace Tamrivo
{

namespace
{

constexpr auto automationBase = static_cast<HRESULT>(0x800A0000);

/// Whether the code tells that the called object's program is no longer there.
bool IsGone(HRESULT result)
{
    constexpr HRESULT codes[] = {RPC_E_DISCONNECTED, CO_E_OBJNOTCONNECTED, RPC_E_SERVER_DIED,
                                 static_cast<HRESULT>(0x800706BA)}; // No server answers.
    return std::ranges::find(codes, result) != std::end(codes);
}

std::string Hexadecimal(HRESULT result)
{
    char text[11];
    std::snprintf(text, sizeof text, "0x%08lX", static_cast<unsigned long>(result));
    return text;
}

/// Takes a text over that came with a failure.
std::string Take(BSTR& text)
{
    std::string taken = Utf8(text);
    SysFreeString(std::exchange(text, nullptr));
    return taken;
}

} // namespace

HRESULT ResultOf(const ErrorRecord& error)
{
    if (error.Number < 0)
        return error.Number;
    return automationBase + (error.Number & 0xFFFF);
}

std::int32_t NumberOf(HRESULT result)
{
    const bool isAutomation = (result & static_cast<HRESULT>(0xFFFF0000)) == automationBase;
    return isAutomation ? result & 0xFFFF : result;
}

ErrorRecord RecordOfCurrent()
{
    try
    {
        throw;
    }
    catch (const std::bad_alloc&)
    {
        return {E_OUTOFMEMORY, "Tamrivo", "There is not enough memory", {}, 0};
    }
    catch (const std::exception&)
    {
        return CurrentError();
    }
    catch (...)
    {
        return {E_ABORT, "Tamrivo", "The work was cancelled", {}, 0};
    }
}

HRESULT Raise(const ErrorRecord& error)
{
    const HRESULT result = ResultOf(error);
    ICreateErrorInfo* made = nullptr;
    if (FAILED(CreateErrorInfo(&made)))
        return result;
    std::wstring source = Wide(error.Source);
    std::wstring description = Wide(error.Description);
    made->SetSource(source.data());
    made->SetDescription(description.data());
    IErrorInfo* info = nullptr;
    if (SUCCEEDED(made->QueryInterface(IID_IErrorInfo, reinterpret_cast<void**>(&info))))
    {
        SetErrorInfo(0, info);
        info->Release();
    }
    made->Release();
    return result;
}

void Fill(EXCEPINFO& info, const ErrorRecord& error)
{
    info = {};
    info.scode = ResultOf(error);
    info.bstrSource = NewText(error.Source);
    info.bstrDescription = NewText(error.Description);
}

ErrorRecord RecordOf(HRESULT result, EXCEPINFO& info, std::string_view member)
{
    if (info.pfnDeferredFillIn)
        info.pfnDeferredFillIn(&info);
    const bool isRaised = result == DISP_E_EXCEPTION;
    const HRESULT code = isRaised && info.scode ? info.scode : result;
    const std::int32_t number = isRaised && info.wCode ? info.wCode : NumberOf(code);
    ErrorRecord record{number, Take(info.bstrSource), Take(info.bstrDescription), {}, 0};
    SysFreeString(info.bstrHelpFile);
    if (record.Source.empty())
        record.Source = "Host";
    if (record.Description.empty() && IsGone(code))
        record.Description = "The client's object is gone, and " + std::string(member) +
                             " can't be called: its program has ended";
    else if (record.Description.empty())
        record.Description = "The client's object has failed in " + std::string(member) +
                             " with the result code " + Hexadecimal(code);
    return record;
}

} // namespace Tamrivo
