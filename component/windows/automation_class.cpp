#include "component/windows/automation_class.h"

#include "automation/classes.h"
#include "component/windows/face.h"
#include "component/windows/notation.h"

#include <algorithm>

namespace Tamrivo
{

IUnknown* CreateForAutomation(const CreatableClass& created)
{
    TakeNotationOfPerson();
    const auto isMeant = [&](const Automation::Creatable& each) {
        return created.Name.ends_with(each.Name) &&
               created.Name.size() == each.Name.size() + std::string_view("Tamrivo.").size();
    };
    const auto* found = std::ranges::find_if(Automation::Creatables, isMeant);
    return Face::New(found->Make());
}

} // namespace Tamrivo
