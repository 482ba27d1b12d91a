#include "host/loci/object_list.h"

#include "host/loci/keys.h"

#include <algorithm>

namespace Tamrivo
{

std::shared_ptr<BusinessObject> NamedObjectList::Item(std::int32_t index) const
{
    return m_members[Position(index)];
}

std::shared_ptr<BusinessObject> NamedObjectList::Item(const std::string& key) const
{
    auto member = Find(key);
    if (!member)
        throw Failure(ErrorNumber::InvalidArgument, "ObjectList",
                      "The list has no member \"" + key + "\"");
    return member;
}

void NamedObjectList::Add(std::shared_ptr<BusinessObject> object)
{
    if (!object)
        throw Failure(ErrorNumber::NoObject, "ObjectList", "There is no object to add");
    m_members.push_back(std::move(object));
}

void NamedObjectList::Remove(std::int32_t index)
{
    m_members.erase(m_members.begin() + static_cast<std::ptrdiff_t>(Position(index)));
}

std::shared_ptr<BusinessObject> NamedObjectList::Find(const std::string& key) const
{
    const std::string sought = LookupKey(key);
    const auto found = std::ranges::find_if(
        m_members, [&](const auto& member) { return LookupKey(member->Name()) == sought; });
    return found == m_members.end() ? nullptr : *found;
}

std::size_t NamedObjectList::Position(std::int32_t index) const
{
    if (index < 1 || index > Count())
        throw Failure(ErrorNumber::InvalidArgument, "ObjectList",
                      "The list has no member number " + std::to_string(index) + "; it has " +
                          std::to_string(Count()));
    return static_cast<std::size_t>(index) - 1;
}

} // namespace Tamrivo
