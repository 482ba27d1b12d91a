#pragma once

#include "component/class_table.h"
#include "component/com_object.h"
#include "component/component.h"

namespace Tamrivo
{

/// Creates the objects of one class.
class ClassObject final : public ComObject<IClassFactory, IHostSite>
{
public:
    explicit ClassObject(const CreatableClass& created) : m_created(created) {}

    /// `CLASS_E_NOAGGREGATION` when it is to become part of another object, `E_NoHost` before
    /// `SetHost`, `E_FAIL` when the class can't be created, `E_ABORT` when the person has cancelled
    /// that.
    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* pUnkOuter, REFIID riid,
                                             void** ppvObject) override;
    HRESULT STDMETHODCALLTYPE LockServer(BOOL fLock) override;

    HRESULT STDMETHODCALLTYPE SetHost(Host* host) override;
    HRESULT STDMETHODCALLTYPE SetTextLocale(const std::locale& locale) override;
    HRESULT STDMETHODCALLTYPE GetLastFailure(ErrorRecord* failure) override;

private:
    const CreatableClass& m_created;
};

} // namespace Tamrivo
