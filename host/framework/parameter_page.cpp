#include "host/framework/parameter_page.h"

#include "host/framework/host_application.h"

#include <utility>

namespace Tamrivo
{

ParameterPage::ParameterPage(HostApplication& host,
                             std::shared_ptr<StoredAnalysisParameter> parameter)
    : m_host(host), m_parameter(std::move(parameter)), m_selector(host)
{
    m_menus = m_host.AttachForm(m_selector);
    m_selector.Initialize(m_parameter);
    m_storedTagIDs = ListedTagIDs();
}

void ParameterPage::Save()
{
    m_selector.Save(m_parameter->FragAnalysisParam());
    RequireWholeSelection();
    m_host.Parameters().Save(*m_parameter);
    m_storedTagIDs = ListedTagIDs();
}

bool ParameterPage::IsChanged()
{
    return m_parameter->FragAnalysisParam().TagList && SelectedTagIDs() != m_storedTagIDs;
}

std::set<std::int32_t> ParameterPage::SelectedTagIDs()
{
    std::set<std::int32_t> tagIDs;
    for (const auto& locus : m_selector.SelectedLocusTags())
        tagIDs.insert(locus->LocusTagID());
    return tagIDs;
}

std::set<std::int32_t> ParameterPage::ListedTagIDs()
{
    std::set<std::int32_t> tagIDs;
    auto& tagList = m_parameter->FragAnalysisParam().TagList;
    if (!tagList)
        return tagIDs;
    for (const auto& entry : tagList->Entries())
        tagIDs.insert(entry->TagID(0));
    return tagIDs;
}

void ParameterPage::RequireWholeSelection()
{
    if (!m_parameter->FragAnalysisParam().TagList)
        return;
    // The selector drops what it can't load. Only a tag that is gone may stay away: storing the
    // list without the others would lose them.
    const auto listed = ListedTagIDs();
    for (const auto& locus : m_selector.SelectedLocusTags())
    {
        if (listed.contains(locus->LocusTagID()))
            continue;
        // A tag that was deleted and made anew has another number.
        const auto entry = m_host.NewLocusTagEntry();
        entry->SetTagName(locus->LocusTag());
        const std::int32_t result = entry->Load();
        if (result != LoadResult::NoSuchTag && !listed.contains(entry->TagID(0)))
            throw Failure(ErrorNumber::Unexpected, "ParameterPage",
                          "The selection of parameter \"" + Name() +
                              "\" could not be written whole; the stored one is as it was. Save "
                              "again once the store can be reached");
    }
}

} // namespace Tamrivo
