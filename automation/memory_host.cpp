#include "automation/memory_host.h"

#include "automation/conversions.h"
#include "automation/locus_object.h"
#include "automation/parameters_object.h"
#include "contracts/message_box.h"
#include "core/text.h"
#include "host/loci/keys.h"
#include "host/store/stored_allele.h"

namespace Tamrivo::Automation
{

namespace
{

[[noreturn]] void FailInMemory(std::int32_t number, const std::string& text)
{
    throw Failure(number, "MemoryHost", text);
}

struct Kind
{
    std::string_view Name;
    ObjectPointer (*Make)();
};

constexpr std::array kinds{
    Kind{"Locus",
         []() -> ObjectPointer {
             return std::make_shared<LocusObject>(std::make_shared<MemoryLocus>());
         }},
    Kind{"Allele",
         []() -> ObjectPointer {
             return std::make_shared<AlleleObject>(std::make_shared<StoredAllele>());
         }},
    Kind{"Parameters",
         []() -> ObjectPointer {
             return std::make_shared<ParametersObject>(std::make_shared<ParameterCollection>());
         }},
    Kind{"AnalysisParameter",
         []() -> ObjectPointer { return std::make_shared<AnalysisParameterObject>(); }},
    Kind{"Project", []() -> ObjectPointer { return std::make_shared<ProjectObject>(); }},
};

/// A locus belongs to a project; here all of them to this one.
ObjectPointer TheProject()
{
    auto project = std::make_shared<ProjectObject>();
    project->Put("Name", "In memory");
    project->Put("ProjectID", 1);
    return project;
}

struct AnswerWord
{
    std::string_view Word;
    MessageAnswer Meaning;
};

constexpr std::array answerWords{
    AnswerWord{"ok", MessageAnswer::Ok},
    AnswerWord{"yes", MessageAnswer::Yes},
    AnswerWord{"no", MessageAnswer::No},
};

} // namespace

const Class& MemoryHost::ClassOf() const
{
    return MemoryHostClass;
}

Value MemoryHost::Do(std::size_t position, const List& arguments)
{
    return DoRow(*this, MemoryHostRows, position, arguments);
}

Value MemoryHost::Create(const Member&, const List& arguments)
{
    for (const Kind& kind : kinds)
    {
        if (EqualNoCase(kind.Name, Text(arguments, 0)))
            return kind.Make();
    }
    FailInMemory(ErrorNumber::InvalidArgument,
                 "There is no kind \"" + Text(arguments, 0) +
                     "\"; there are Locus, Allele, Project, Parameters and "
                     "AnalysisParameter");
}

Value MemoryHost::Query(const Member&, const List& arguments)
{
    const std::string& name = Text(arguments, 0);
    if (EqualNoCase(name, "Projects"))
        return List{TheProject()};
    if (!EqualNoCase(name, "CurrentLoci"))
        FailInMemory(ErrorNumber::InvalidArgument,
                     "There is no query \"" + name + "\"; there are CurrentLoci and Projects");
    auto found = m_loci;
    std::erase_if(found, [](const auto& locus) { return !locus->IsCurrent(); });
    if (!Text(arguments, 1).empty())
        std::ranges::stable_sort(found, LessNoCase(),
                                 [](const auto& locus) { return locus->LocusTag(); });
    List loci;
    for (const auto& locus : found)
        loci.push_back(std::make_shared<LocusObject>(locus->Copy()));
    return loci;
}

Value MemoryHost::Save(const Member&, const List& arguments)
{
    const auto locus = ToLocus(Argument<ObjectPointer>(arguments, 0));
    const auto place = static_cast<std::size_t>(locus->LocusID());
    const std::string key = LookupKey(locus->LocusTag());
    for (const auto& stored : m_loci)
    {
        if (stored->LocusID() != locus->LocusID() && LookupKey(stored->LocusTag()) == key)
            FailInMemory(ErrorNumber::KeyTaken,
                         "There is a locus \"" + locus->LocusTag() + "\" already");
    }
    if (key.empty())
        FailInMemory(ErrorNumber::InvalidArgument, "A locus needs a tag to be stored");
    if (place > m_loci.size())
        FailInMemory(ErrorNumber::InvalidArgument,
                     "There is no stored locus with the number " + std::to_string(place));
    if (place == 0)
    {
        m_loci.emplace_back();
        const auto number = static_cast<std::int32_t>(m_loci.size());
        locus->SetLocusID(number);
        locus->SetLocusTagID(number);
    }
    m_loci[static_cast<std::size_t>(locus->LocusID()) - 1] = locus->Copy();
    return {};
}

Value MemoryHost::StartWizard(const Member&, const List& arguments)
{
    FailInMemory(ErrorNumber::InvalidArgument, "Nobody is there to complete the wizard \"" +
                                                   Text(arguments, 0) +
                                                   "\"; set a Host that has a StartWizard");
}

Value MemoryHost::ShowMessage(const Member&, const List& arguments)
{
    m_messages.push_back(arguments[0]);
    const bool isQuestion = Long(arguments, 1) == MessageKind::ExclamationYesNo;
    const auto safest = isQuestion ? MessageAnswer::No : MessageAnswer::Ok;
    return std::exchange(m_answer, {}).value_or(static_cast<std::int32_t>(safest));
}

Value MemoryHost::ReportError(const Member&, const List& arguments)
{
    m_reports.push_back(Text(arguments, 0) + " " + Text(arguments, 1) + ": " + Text(arguments, 3));
    return {};
}

Value MemoryHost::Answer(const Member&, const List& arguments)
{
    for (const AnswerWord& word : answerWords)
    {
        if (EqualNoCase(word.Word, Text(arguments, 0)))
        {
            m_answer = static_cast<std::int32_t>(word.Meaning);
            return {};
        }
    }
    FailInMemory(ErrorNumber::InvalidArgument,
                 "A message box is answered with ok, yes or no, not with \"" + Text(arguments, 0) +
                     "\"");
}

} // namespace Tamrivo::Automation
