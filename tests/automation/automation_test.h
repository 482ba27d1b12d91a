#pragma once

#include "automation/memory_host.h"
#include "automation/page_object.h"
#include "automation/parameters_object.h"
#include "automation/selector_object.h"
#include "automation/service_object.h"

#include <functional>
#include <map>

namespace Tamrivo::Automation
{

template <class T>
T As(const Value& value)
{
    return std::get<T>(value);
}

inline Value Do(Object& object, std::string_view name, const List& arguments = {})
{
    return object.Call(name, Access::Method, arguments);
}

inline ObjectPointer Made(Object& object, const char* kind)
{
    return As<ObjectPointer>(Do(object, "Create", {kind}));
}

/// The in-memory host with a stored locus, and the parameters of an editor that shows it.
struct Stored
{
    explicit Stored(const char* tag)
    {
        const auto locus = Made(*Host, "Locus");
        locus->Put("LocusTag", tag);
        locus->Put("FragStart", 100);
        locus->Put("ShortestAlleleSize", 100);
        locus->Put("FragEnd", 120);
        Do(*Host, "Save", {locus});
    }

    ObjectPointer EditorParameters() const
    {
        auto parameters = Made(*Host, "Parameters");
        const List loci = As<List>(Do(*Host, "Query", {"CurrentLoci", ""}));
        Do(*parameters, "Add", {loci.front(), "Locus"});
        return parameters;
    }

    std::shared_ptr<MemoryHost> Host = std::make_shared<MemoryHost>();
};

/// A host of a client: what it is asked goes to a function, or else to a host in memory.
class ScriptHost : public Object
{
public:
    Value Call(std::string_view name, Access how, const List& arguments) override
    {
        Asked.emplace_back(name);
        const auto own = Own.find(name);
        return own != Own.end() ? own->second(arguments) : Behind->Call(name, how, arguments);
    }

    std::map<std::string, std::function<Value(const List&)>, std::less<>> Own;
    std::vector<std::string> Asked;
    ObjectPointer Behind;
};

/// The failure of a call; number 0 for none.
inline ErrorRecord FailureOf(const std::function<void()>& call)
{
    try
    {
        call();
    }
    catch (const Failure& failure)
    {
        return failure.Record();
    }
    return {};
}

} // namespace Tamrivo::Automation
