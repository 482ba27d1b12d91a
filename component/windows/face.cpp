#include "component/windows/face.h"

#include "component/guid_text.h"
#include "component/module.h"
#include "component/registry_entry.h"
#include "component/windows/dual.h"
#include "component/windows/failures.h"
#include "component/windows/text.h"
#include "component/windows/type_library.h"
#include "component/windows/variants.h"
#include "core/text.h"

namespace Tamrivo
{

using namespace Automation;

namespace
{

/// Asks a reference whether it is a face of this module.
constexpr IID IID_Face{
    0x7E5C3A19, 0x2D4B, 0x4860, {0x91, 0xA3, 0xC5, 0xE7, 0x09, 0x2B, 0x4D, 0x6F}};

/// How a member is used, by the flags of a call.
Access AccessOf(WORD flags)
{
    if (flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF))
        return Access::Put;
    return flags & DISPATCH_METHOD ? Access::Method : Access::Get;
}

/// Arguments in the order of the parameters. Those with a number stand first, under it; the others
/// come last to first.
List ArgumentsOf(const DISPPARAMS& parameters)
{
    List arguments(parameters.cArgs);
    for (UINT i = 0; i < parameters.cArgs; ++i)
    {
        const bool isNamed =
            i < parameters.cNamedArgs && parameters.rgdispidNamedArgs[i] != DISPID_PROPERTYPUT;
        const auto place =
            isNamed ? static_cast<UINT>(parameters.rgdispidNamedArgs[i]) : parameters.cArgs - 1 - i;
        if (place >= parameters.cArgs)
            throw Failure(ClientError::WrongArguments, "Automation",
                          "An argument stands under a number that no parameter has");
        arguments[place] = ToValue(parameters.rgvarg[i]);
    }
    return arguments;
}

} // namespace

Face::Face(std::shared_ptr<TableObject> object)
    : m_table(DualTable(object->ClassOf())), m_object(std::move(object))
{
    ++TheModule().InUse;
}

Face::~Face()
{
    --TheModule().InUse;
}

IDispatch* Face::New(std::shared_ptr<TableObject> object)
{
    return reinterpret_cast<IDispatch*>(new Face(std::move(object)));
}

ObjectPointer Face::ObjectBehind(IDispatch& client)
{
    Face* face = nullptr;
    if (FAILED(client.QueryInterface(IID_Face, reinterpret_cast<void**>(&face))))
        return nullptr;
    ObjectPointer object = face->m_object;
    Release(face);
    return object;
}

IID Face::Id() const
{
    return *GuidFromText("{" + std::string(m_object->ClassOf().InterfaceId) + "}");
}

HRESULT STDMETHODCALLTYPE Face::QueryInterface(Face* self, REFIID riid, void** object)
{
    if (!object)
        return E_POINTER;
    *object = nullptr;
    if (riid == IID_ISupportErrorInfo)
        *object = static_cast<ISupportErrorInfo*>(&self->m_errorSupport);
    else if (riid == IID_IUnknown || riid == IID_IDispatch || riid == IID_Face ||
             riid == self->Id())
        *object = self;
    else
        return E_NOINTERFACE;
    AddRef(self);
    return S_OK;
}

ULONG STDMETHODCALLTYPE Face::AddRef(Face* self)
{
    return ++self->m_references;
}

ULONG STDMETHODCALLTYPE Face::Release(Face* self)
{
    const ULONG references = --self->m_references;
    if (references == 0)
        delete self;
    return references;
}

HRESULT STDMETHODCALLTYPE Face::GetTypeInfoCount(Face* /*self*/, UINT* count)
{
    if (!count)
        return E_POINTER;
    *count = 1;
    return S_OK;
}

HRESULT STDMETHODCALLTYPE Face::GetTypeInfo(Face* self, UINT number, LCID, ITypeInfo** info)
{
    if (!info)
        return E_POINTER;
    *info = nullptr;
    return number == 0 ? FindTypeInfo(self->Id(), info) : DISP_E_BADINDEX;
}

HRESULT STDMETHODCALLTYPE Face::GetIDsOfNames(Face* self, REFIID, LPOLESTR* names, UINT count, LCID,
                                              DISPID* numbers)
{
    if (!names || !numbers || count == 0)
        return E_INVALIDARG;
    std::fill_n(numbers, count, DISPID_UNKNOWN);
    try
    {
        const Class& type = self->m_object->ClassOf();
        const std::int32_t number = type.NumberOf(Registry::PathText(names[0]));
        if (number == 0)
            return DISP_E_UNKNOWNNAME;
        numbers[0] = number;
        const Member& member = type.Members[static_cast<std::size_t>(number) - 1];
        bool isKnown = true;
        for (UINT i = 1; i < count; ++i)
        {
            const std::string name = Registry::PathText(names[i]);
            for (std::size_t place = 0; place < member.Count(); ++place)
            {
                if (EqualNoCase(member.Parameters[place].Name, name))
                    numbers[i] = static_cast<DISPID>(place);
            }
            isKnown = isKnown && numbers[i] != DISPID_UNKNOWN;
        }
        return isKnown ? S_OK : DISP_E_UNKNOWNNAME;
    }
    catch (...)
    {
        return Raise(RecordOfCurrent());
    }
}

HRESULT STDMETHODCALLTYPE Face::Invoke(Face* self, DISPID number, REFIID, LCID, WORD flags,
                                       DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* info,
                                       UINT* /*wrong*/)
{
    const Class& type = self->m_object->ClassOf();
    if (!parameters)
        return E_INVALIDARG;
    if (number < 1 || static_cast<std::size_t>(number) > type.Members.size())
        return DISP_E_MEMBERNOTFOUND;
    // The call may give up the client's last reference.
    AddRef(self);
    HRESULT answer = S_OK;
    try
    {
        SetErrorInfo(0, nullptr);
        Variant value;
        *value.Out() =
            NewVariant(self->m_object->Call(type.Members[static_cast<std::size_t>(number) - 1].Name,
                                            AccessOf(flags), ArgumentsOf(*parameters)));
        if (result)
            *result = value.Take();
    }
    catch (...)
    {
        const ErrorRecord error = RecordOfCurrent();
        answer = info ? DISP_E_EXCEPTION : Raise(error);
        if (info)
            Fill(*info, error);
    }
    Release(self);
    return answer;
}

HRESULT STDMETHODCALLTYPE Face::ErrorSupport::QueryInterface(REFIID riid, void** object)
{
    return Face::QueryInterface(&Owner, riid, object);
}

ULONG STDMETHODCALLTYPE Face::ErrorSupport::AddRef()
{
    return Face::AddRef(&Owner);
}

ULONG STDMETHODCALLTYPE Face::ErrorSupport::Release()
{
    return Face::Release(&Owner);
}

HRESULT STDMETHODCALLTYPE Face::ErrorSupport::InterfaceSupportsErrorInfo(REFIID riid)
{
    return riid == Owner.Id() || riid == IID_IDispatch ? S_OK : S_FALSE;
}

} // namespace Tamrivo
