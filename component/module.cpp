#include "component/module.h"

namespace Tamrivo
{

Module& TheModule()
{
    static Module module;
    return module;
}

} // namespace Tamrivo
