#pragma once

#include "automation/object.h"
#include "component/com.h"

#include <atomic>
#include <memory>
#include <span>

namespace Tamrivo
{

/// An entry of an interface's table of functions.
using Slot = void (*)();

/// An object of automation as a client has it: `IDispatch`, the dual interface of its class, and
/// `ISupportErrorInfo`. It begins with the table of its functions, as every interface does, and the
/// table is made from that of the class (dual.h), so that no member is written down twice.
class Face
{
public:
    /// A new one with one reference. Raises `std::bad_alloc`.
    static IDispatch* New(std::shared_ptr<Automation::TableObject> object);
    /// The object behind a reference; null when it is none of this module's.
    static Automation::ObjectPointer ObjectBehind(IDispatch& client);

    Face(const Face&) = delete;
    Face& operator=(const Face&) = delete;

    Automation::TableObject& Object() const { return *m_object; }

    // The functions of `IDispatch`, the first seven of the table.

    static HRESULT STDMETHODCALLTYPE QueryInterface(Face* self, REFIID riid, void** object);
    static ULONG STDMETHODCALLTYPE AddRef(Face* self);
    static ULONG STDMETHODCALLTYPE Release(Face* self);
    static HRESULT STDMETHODCALLTYPE GetTypeInfoCount(Face* self, UINT* count);
    static HRESULT STDMETHODCALLTYPE GetTypeInfo(Face* self, UINT number, LCID, ITypeInfo** info);
    static HRESULT STDMETHODCALLTYPE GetIDsOfNames(Face* self, REFIID, LPOLESTR* names, UINT count,
                                                   LCID, DISPID* numbers);
    static HRESULT STDMETHODCALLTYPE Invoke(Face* self, DISPID number, REFIID, LCID, WORD flags,
                                            DISPPARAMS* parameters, VARIANT* result,
                                            EXCEPINFO* info, UINT* wrong);

private:
    /// `ISupportErrorInfo` of a face.
    struct ErrorSupport final : ISupportErrorInfo
    {
        explicit ErrorSupport(Face& owner) : Owner(owner) {}
        HRESULT STDMETHODCALLTYPE QueryInterface(REFIID riid, void** object) override;
        ULONG STDMETHODCALLTYPE AddRef() override;
        ULONG STDMETHODCALLTYPE Release() override;
        HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID riid) override;

        Face& Owner;
    };

    explicit Face(std::shared_ptr<Automation::TableObject> object);
    ~Face();

    /// Of the dual interface.
    IID Id() const;

    const Slot* m_table;
    std::atomic<ULONG> m_references = 1;
    std::shared_ptr<Automation::TableObject> m_object;
    ErrorSupport m_errorSupport{*this};
};

} // namespace Tamrivo
