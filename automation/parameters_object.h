#pragma once

#include "automation/object.h"
#include "contracts/parameters.h"

namespace Tamrivo::Automation
{

/// The parameter collection of a wizard as clients see it: loci, whole numbers and texts by key. A
/// binning context stands there as the text "Binning".
class ParametersObject final : public TableObject
{
public:
    explicit ParametersObject(std::shared_ptr<ParameterCollection> parameters)
        : m_parameters(std::move(parameters))
    {}

    const Class& ClassOf() const override;
    const std::shared_ptr<ParameterCollection>& Shared() const { return m_parameters; }

    Value Add(const Member&, const List& arguments);
    Value Item(const Member&, const List& arguments);
    Value Remove(const Member&, const List& arguments);
    Value Exists(const Member&, const List& arguments);
    Value Count(const Member&, const List&);
    Value Keys(const Member&, const List&);

private:
    Value Do(std::size_t position, const List& arguments) override;

    std::shared_ptr<ParameterCollection> m_parameters;
};

inline constexpr std::array ParametersRows{
    Row<ParametersObject>{
        {"Add", Access::Method, Type::None, {{{"value", Type::Any}, {"key", Type::Text}}}},
        &ParametersObject::Add},
    Row<ParametersObject>{{"Item", Access::Get, Type::Any, {{{"key", Type::Text}}}},
                          &ParametersObject::Item},
    Row<ParametersObject>{{"Remove", Access::Method, Type::None, {{{"key", Type::Text}}}},
                          &ParametersObject::Remove},
    Row<ParametersObject>{{"Exists", Access::Method, Type::Boolean, {{{"key", Type::Text}}}},
                          &ParametersObject::Exists},
    Row<ParametersObject>{{"Count", Access::Get, Type::Long, {}}, &ParametersObject::Count},
    Row<ParametersObject>{{"Keys", Access::Get, Type::Values, {}}, &ParametersObject::Keys},
};
inline constexpr auto ParametersMembers = MembersOf(ParametersRows);
inline constexpr Class ParametersClass{"Parameters", "5B7A9E10-42C6-4D8F-A1B3-7C0E4F6D2A03",
                                       "What a wizard and its starter share, by key.",
                                       ParametersMembers};

/// An analysis parameter as clients see it: its list of locus tags. A client may give an object of
/// its own instead, with the property LocusTags.
class AnalysisParameterObject final : public TableObject
{
public:
    const Class& ClassOf() const override;

    Value LocusTags(const Member&, const List&) { return m_tags; }
    Value PutLocusTags(const Member&, const List& arguments);

private:
    Value Do(std::size_t position, const List& arguments) override;

    List m_tags;
};

inline constexpr std::array AnalysisParameterRows{
    Row<AnalysisParameterObject>{{"LocusTags", Access::Get, Type::Values, {}},
                                 &AnalysisParameterObject::LocusTags},
    Row<AnalysisParameterObject>{
        {"LocusTags", Access::Put, Type::None, {{{"value", Type::Values}}}},
        &AnalysisParameterObject::PutLocusTags},
};
inline constexpr auto AnalysisParameterMembers = MembersOf(AnalysisParameterRows);
inline constexpr Class AnalysisParameterClass{
    "AnalysisParameter", "0D4E6F21-93AB-47C5-B8E7-1F2A3B4C5D04",
    "The list of locus tags of an analysis parameter.", AnalysisParameterMembers};

/// A project as clients see it. A client may give an object of its own instead, with the same
/// properties.
class ProjectObject final : public TableObject
{
public:
    const Class& ClassOf() const override;

    Value Name(const Member&, const List&) { return m_name; }
    Value PutName(const Member&, const List& arguments);
    Value ProjectID(const Member&, const List&) { return m_id; }
    Value PutProjectID(const Member&, const List& arguments);

private:
    Value Do(std::size_t position, const List& arguments) override;

    std::string m_name;
    std::int32_t m_id = 0;
};

inline constexpr std::array ProjectRows{
    Row<ProjectObject>{{"Name", Access::Get, Type::Text, {}}, &ProjectObject::Name},
    Row<ProjectObject>{{"Name", Access::Put, Type::None, {{{"value", Type::Text}}}},
                       &ProjectObject::PutName},
    Row<ProjectObject>{{"ProjectID", Access::Get, Type::Long, {}}, &ProjectObject::ProjectID},
    Row<ProjectObject>{{"ProjectID", Access::Put, Type::None, {{{"value", Type::Long}}}},
                       &ProjectObject::PutProjectID},
};
inline constexpr auto ProjectMembers = MembersOf(ProjectRows);
inline constexpr Class ProjectClass{"Project", "6C8E0A2B-4D6F-4819-93B5-D7F9A1C3E509",
                                    "A project, to which loci belong.", ProjectMembers};

} // namespace Tamrivo::Automation
