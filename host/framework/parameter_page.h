#pragma once

#include "host/store/stored_parameter.h"
#include "selector/str_locus_tag_selector.h"

#include <memory>
#include <set>
#include <string>

namespace Tamrivo
{

class HostApplication;

/// The host's page of one analysis parameter, with the tag selector on it. Closing is its
/// destruction; what wasn't saved is dropped.
class ParameterPage
{
public:
    /// Opens the page of a stored parameter. Raises what the selector raises at its opening.
    ParameterPage(HostApplication& host, std::shared_ptr<StoredAnalysisParameter> parameter);

    const std::string& Name() const { return m_parameter->Name(); }
    STRLocusTagSelector& Selector() { return m_selector; }

    /// Lets the selector write its selection into the parameter and stores that. When the selector
    /// could not write a tag that is still in the store, nothing is stored and a failure raised.
    void Save();

    /// Whether `Save` would store other tags than the parameter has, in whatever order.
    bool IsChanged();

private:
    /// `Locus::LocusTagID` of the selected tags.
    std::set<std::int32_t> SelectedTagIDs();
    /// `LocusTagEntry::TagID` of the parameter's list.
    std::set<std::int32_t> ListedTagIDs();
    void RequireWholeSelection();

    HostApplication& m_host;
    std::shared_ptr<StoredAnalysisParameter> m_parameter;
    STRLocusTagSelector m_selector;
    std::set<std::int32_t> m_storedTagIDs;
    Connection m_menus;
};

} // namespace Tamrivo
