#pragma once

#include "contracts/business_object.h"

#include <vector>

namespace Tamrivo
{

/// An `ObjectList` whose members are found by `Name`, without minding case or trailing blanks, in
/// a time that grows with the list.
class NamedObjectList : public ObjectList
{
public:
    std::int32_t Count() const override { return static_cast<std::int32_t>(m_members.size()); }
    std::shared_ptr<BusinessObject> Item(std::int32_t index) const override;
    std::shared_ptr<BusinessObject> Item(const std::string& key) const override;
    bool KeyExists(const std::string& key) const override { return Find(key) != nullptr; }
    void Add(std::shared_ptr<BusinessObject> object) override;
    void Remove(std::int32_t index) override;
    std::span<const std::shared_ptr<BusinessObject>> Members() const override { return m_members; }

    void Reserve(std::size_t count) { m_members.reserve(count); }
    void Clear() { m_members.clear(); }

protected:
    /// The first member with the key, or none.
    virtual std::shared_ptr<BusinessObject> Find(const std::string& key) const;
    /// The 0-based position for a 1-based index.
    std::size_t Position(std::int32_t index) const;

private:
    std::vector<std::shared_ptr<BusinessObject>> m_members;
};

} // namespace Tamrivo
