#include "automation/parameters_object.h"

#include "automation/conversions.h"
#include "core/narrowing.h"
#include "host/alleles/shared_binning.h"

namespace Tamrivo::Automation
{

namespace
{

struct ToParameter
{
    const std::string& Key;

    Parameter operator()(const ObjectPointer& object) const { return ToLocus(object); }
    Parameter operator()(std::int32_t number) const { return ToShortInteger(number); }
    Parameter operator()(const std::string& text) const
    {
        if (Key == ParameterKey::Binning)
            return std::make_shared<SharedBinning>();
        return text;
    }
    template <class Other>
    Parameter operator()(const Other&) const
    {
        throw Failure(ErrorNumber::NotANumber, "Parameters",
                      "The parameter \"" + Key + "\" must be a locus, a whole number or a text");
    }
};

struct FromParameter
{
    Value operator()(const std::shared_ptr<Locus>& locus) const
    {
        return locus ? ToObject(locus) : nullptr;
    }
    Value operator()(const std::shared_ptr<BinningContext>&) const { return "Binning"; }
    Value operator()(std::int16_t number) const { return std::int32_t{number}; }
    Value operator()(const std::string& text) const { return text; }
};

} // namespace

const Class& ParametersObject::ClassOf() const
{
    return ParametersClass;
}

Value ParametersObject::Do(std::size_t position, const List& arguments)
{
    return DoRow(*this, ParametersRows, position, arguments);
}

Value ParametersObject::Add(const Member&, const List& arguments)
{
    const std::string& key = Text(arguments, 1);
    m_parameters->Add(std::visit(ToParameter{key}, arguments[0]), key);
    return {};
}

Value ParametersObject::Item(const Member&, const List& arguments)
{
    return std::visit(FromParameter(), m_parameters->Item(Text(arguments, 0)));
}

Value ParametersObject::Remove(const Member&, const List& arguments)
{
    m_parameters->Remove(Text(arguments, 0));
    return {};
}

Value ParametersObject::Exists(const Member&, const List& arguments)
{
    return m_parameters->KeyExists(Text(arguments, 0));
}

Value ParametersObject::Count(const Member&, const List&)
{
    return static_cast<std::int32_t>(m_parameters->Count());
}

Value ParametersObject::Keys(const Member&, const List&)
{
    List keys;
    for (const std::string& key : m_parameters->Keys())
        keys.emplace_back(key);
    return keys;
}

const Class& AnalysisParameterObject::ClassOf() const
{
    return AnalysisParameterClass;
}

Value AnalysisParameterObject::Do(std::size_t position, const List& arguments)
{
    return DoRow(*this, AnalysisParameterRows, position, arguments);
}

Value AnalysisParameterObject::PutLocusTags(const Member&, const List& arguments)
{
    List tags;
    for (const Value& tag : Argument<List>(arguments, 0))
        tags.push_back(ConvertTo(Type::Text, tag, "Each member of LocusTags"));
    m_tags = tags;
    return {};
}

const Class& ProjectObject::ClassOf() const
{
    return ProjectClass;
}

Value ProjectObject::Do(std::size_t position, const List& arguments)
{
    return DoRow(*this, ProjectRows, position, arguments);
}

Value ProjectObject::PutName(const Member&, const List& arguments)
{
    m_name = Text(arguments, 0);
    return {};
}

Value ProjectObject::PutProjectID(const Member&, const List& arguments)
{
    m_id = Long(arguments, 0);
    return {};
}

} // namespace Tamrivo::Automation
