#pragma once

#include "automation/locus_object.h"
#include "automation/memory_host.h"
#include "automation/page_object.h"
#include "automation/pane_object.h"
#include "automation/parameters_object.h"
#include "automation/selector_object.h"
#include "automation/service_object.h"

namespace Tamrivo::Automation
{

/// Of the type library that describes the classes, without braces.
inline constexpr std::string_view LibraryId = "4F8A2C6E-1B3D-4E57-9A80-C2D4F6A8B00A";

/// Every class that clients meet.
inline constexpr std::array<const Class*, 10> AllClasses{
    &PageClass,       &SelectorClass,          &ServiceClass, &LocusClass,      &AlleleClass,
    &ParametersClass, &AnalysisParameterClass, &ProjectClass, &MemoryHostClass, &PaneClass,
};

/// What clients create by name: "Tamrivo." before the name.
struct Creatable
{
    std::string_view Name;
    const Class& Of;
    std::shared_ptr<TableObject> (*Make)();
};

inline constexpr std::array Creatables{
    Creatable{"Service", ServiceClass,
              []() -> std::shared_ptr<TableObject> { return std::make_shared<ServiceObject>(); }},
    Creatable{"LocusEditorPage", PageClass,
              []() -> std::shared_ptr<TableObject> { return NewEditorPage(); }},
    Creatable{"STRLocusTagSelector", SelectorClass,
              []() -> std::shared_ptr<TableObject> { return std::make_shared<SelectorObject>(); }},
    Creatable{"SaveAsLocusPage", PageClass,
              []() -> std::shared_ptr<TableObject> { return NewSaveAsPage(); }},
};

} // namespace Tamrivo::Automation
