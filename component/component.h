#pragma once

/// The library as a module that a program loads by name and doesn't link.
///
/// The module exports the four entry points of a self-registering server of the component object
/// model. `DllRegisterServer` enters its classes into the registry file (registry_file.h), which
/// tells a class's identifier and module by its name; `DllGetClassObject` gives the class object.
/// Before anything can be created a program hands over its `Host`, once, through any class object:
///
///     IHostSite* site = nullptr;
///     getClassObject(classId, IHostSite::Id, reinterpret_cast<void**>(&site));
///     site->SetHost(&host);
///
/// A call into an object raises what its procedures raise. `CreateInstance` answers a result code
/// instead: `E_FAIL` for a failure, which `IHostSite::GetLastFailure` tells, `E_ABORT` for what is
/// no failure, such as a host's own type for work that the person has cancelled.
///
/// Each class's objects answer `IUnknown` and `IObjectAccess` for what they can be reached by:
///
/// | class                         | `IObjectAccess` for                                         |
/// |-------------------------------|-------------------------------------------------------------|
/// | `Tamrivo.Service`             | `IServiceAccess`                                            |
/// | `Tamrivo.LocusEditorPage`     | `IPageAccess`, `UserControl`, `User::FormUser`              |
/// | `Tamrivo.SaveAsLocusPage`     | `IPageAccess`, `UserControl`, `User::FormUser`              |
/// | `Tamrivo.STRLocusTagSelector` | `ILocusTagSelector`, `UserControl`, `User::FormUser`        |
///
/// Program and module share C++ objects, so both are built with one compiler, standard library and
/// version of these headers. A program that links nothing of the library implements what stands in
/// contracts/ and the grid of selector/, and calls what is virtual or defined in headers: all of
/// contracts/, `Collection`, `Dictionary` and `Event`, reading the controls, and `User::FormUser`
/// for what a person does. Exceptions (`Failure`, `User::Refusal`) cross the border both ways.
///
/// The module can be unloaded once `DllCanUnloadNow` answers `S_OK`: every reference is released.
/// Nothing that the module has made is left with the program by then, so that it may go on with all
/// its objects. Handlers have left the events of its loci, grids, panes and page objects, and the
/// collections that it was given are its own (`Host::NewParameterCollection`,
/// `ILocusTagSelector::SelectedLocusTags`). Only an exception is the module's own: a program that
/// wants to keep what it has caught copies the `ErrorRecord`.

#include "component/com.h"
#include "contracts/analysis_parameter.h"
#include "contracts/host.h"
#include "contracts/page.h"
#include "contracts/service_base.h"
#include "controls/form_user.h"
#include "core/collection.h"

#include <locale>

namespace Tamrivo
{

/// Answer of `IClassFactory::CreateInstance` as long as no host is set.
inline constexpr HRESULT E_NoHost = static_cast<HRESULT>(0x80040210);

/// Class identifiers, for a program that has the module without its registration.
namespace ClassId
{
inline constexpr CLSID Service{
    0x51496F5B, 0x0C08, 0x4A20, {0xBC, 0x03, 0xE2, 0x4D, 0x68, 0x5B, 0x0C, 0xFD}};
inline constexpr CLSID LocusEditorPage{
    0x745EFFE3, 0xDF40, 0x4AF9, {0xB2, 0xF8, 0x04, 0x96, 0xE4, 0xFE, 0x09, 0x99}};
inline constexpr CLSID STRLocusTagSelector{
    0x1116FB84, 0xAEF4, 0x41FE, {0x80, 0xA9, 0xB5, 0x8C, 0x8C, 0x6C, 0xDA, 0xD4}};
inline constexpr CLSID SaveAsLocusPage{
    0x4A0CF6AC, 0xD32B, 0x4E9D, {0xBD, 0x92, 0x15, 0x6D, 0x6D, 0x31, 0x1D, 0x8F}};
} // namespace ClassId

/// Answered by every class object. What is set holds for the whole module.
struct IHostSite : public IUnknown
{
    static constexpr GUID Id{
        0x0FB3239A, 0xFAC4, 0x4AB8, {0x91, 0x56, 0x73, 0x0F, 0x6E, 0xE3, 0x9B, 0xF4}};

    /// Sets the host of the objects created from now on; null: none can be created any more. The
    /// host outlives all that were created for it.
    virtual HRESULT STDMETHODCALLTYPE SetHost(Host* host) = 0;
    /// Sets the notation of numbers and dates, the classic one at first. Call it before the first
    /// page is opened.
    virtual HRESULT STDMETHODCALLTYPE SetTextLocale(const std::locale& locale) = 0;
    /// What the last call failed of that answered `E_FAIL`, or `SELFREG_E_CLASS` for a
    /// registration. `S_FALSE` when none has failed. A class that can't be created reports nothing
    /// of its own: the host has heard from its guards what they report.
    virtual HRESULT STDMETHODCALLTYPE GetLastFailure(ErrorRecord* failure) = 0;
};

/// `STRLocusTagSelector` for a program that doesn't link it.
class ILocusTagSelector
{
public:
    virtual ~ILocusTagSelector() = default;

    /// All current loci, those included that were added since `Initialize`; null before it.
    virtual std::shared_ptr<ObjectList> AllLocusTags() const = 0;
    virtual std::int32_t NumberOfSelectedLocusTags() const = 0;
    /// The loci of the selection in the present order of its rows, in a collection that is made
    /// here, and so by the program.
    Collection<std::shared_ptr<Locus>> SelectedLocusTags() const
    {
        Collection<std::shared_ptr<Locus>> loci;
        AddSelectedLocusTags(loci);
        return loci;
    }
    virtual void AddSelectedLocusTags(Collection<std::shared_ptr<Locus>>& loci) const = 0;
    /// Fills the grids from the parameter; call it before all else, `Enabled` excepted.
    virtual void Initialize(const std::shared_ptr<AnalysisParameter>& oAnalysisParameter) = 0;
    /// Replaces the parameter's first tag list by the selection.
    virtual void Save(FragAnalysisParam& oFragAnalysisParam) = 0;
    virtual bool Enabled() const = 0;
    virtual void SetEnabled(bool bValue) = 0;
};

/// Identifier of `IObjectAccess` to a `T`.
template <class T>
struct AccessId;
template <>
struct AccessId<IServiceAccess>
{
    static constexpr GUID Value{
        0x9D81D538, 0x9772, 0x488F, {0x90, 0xFF, 0xF6, 0x79, 0x1F, 0x73, 0x9E, 0xE6}};
};
template <>
struct AccessId<IPageAccess>
{
    static constexpr GUID Value{
        0xF8471F34, 0x337F, 0x49E3, {0xB1, 0x2D, 0x7B, 0x30, 0xD2, 0xA5, 0x9B, 0x22}};
};
template <>
struct AccessId<ILocusTagSelector>
{
    static constexpr GUID Value{
        0x315942B2, 0xB4AE, 0x4E9D, {0x97, 0xC8, 0xDA, 0xC9, 0xB2, 0xE7, 0x85, 0xB0}};
};
template <>
struct AccessId<UserControl>
{
    static constexpr GUID Value{
        0x175166DE, 0xDE74, 0x4B5B, {0xB9, 0xA5, 0xCC, 0xFA, 0xA5, 0x7A, 0xB1, 0xB8}};
};
template <>
struct AccessId<User::FormUser>
{
    static constexpr GUID Value{
        0xD02BBE55, 0x00DA, 0x44BD, {0x9B, 0x5D, 0x23, 0x04, 0xD4, 0xE2, 0x95, 0x1D}};
};

/// Gives the C++ object behind a created object.
template <class T>
struct IObjectAccess : public IUnknown
{
    static constexpr GUID Id = AccessId<T>::Value;

    /// The object lives as long as a reference to any of the created object's interfaces.
    /// `E_POINTER` without a place for it.
    virtual HRESULT STDMETHODCALLTYPE Get(T** object) = 0;
};

} // namespace Tamrivo
