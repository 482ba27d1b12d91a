#include "component/windows/type_library.h"

#include "component/module_path.h"

namespace Tamrivo
{

HRESULT FindTypeInfo(REFIID id, ITypeInfo** info)
{
    ITypeLib* library = nullptr;
    const HRESULT loaded = LoadTypeLibEx(ModulePath().c_str(), REGKIND_NONE, &library);
    if (FAILED(loaded))
        return loaded;
    const HRESULT found = library->GetTypeInfoOfGuid(id, info);
    library->Release();
    return found;
}

} // namespace Tamrivo
