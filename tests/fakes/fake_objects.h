#pragma once

#include "contracts/allele.h"
#include "contracts/grid_layout.h"
#include "contracts/object_manager.h"
#include "contracts/project.h"
#include "core/text.h"

#include <algorithm>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace Tamrivo::Fakes
{

class FakeObjectList : public ObjectList
{
public:
    std::int32_t Count() const override { return static_cast<std::int32_t>(Objects.size()); }
    std::shared_ptr<BusinessObject> Item(std::int32_t index) const override
    {
        return Objects[Position(index)];
    }
    std::shared_ptr<BusinessObject> Item(const std::string& key) const override
    {
        const auto found = Find(key);
        if (found == Objects.end())
            throw Failure(ErrorNumber::InvalidArgument, "FakeObjectList", "no \"" + key + "\"");
        return *found;
    }
    bool KeyExists(const std::string& key) const override { return Find(key) != Objects.end(); }
    void Add(std::shared_ptr<BusinessObject> object) override { Objects.push_back(object); }
    void Remove(std::int32_t index) override
    {
        Objects.erase(Objects.begin() + static_cast<std::ptrdiff_t>(Position(index)));
    }
    std::span<const std::shared_ptr<BusinessObject>> Members() const override { return Objects; }

    std::vector<std::shared_ptr<BusinessObject>> Objects;

private:
    std::size_t Position(std::int32_t index) const
    {
        if (index < 1 || index > Count())
            throw Failure(ErrorNumber::InvalidArgument, "FakeObjectList", "no such index");
        return static_cast<std::size_t>(index - 1);
    }
    std::vector<std::shared_ptr<BusinessObject>>::const_iterator Find(const std::string& key) const
    {
        return std::ranges::find_if(Objects, [&](const auto& object) {
            return object && EqualNoCase(TrimRight(object->Name()), TrimRight(key));
        });
    }
};

class FakeAllele : public Allele
{
public:
    void SetAlleleOwner(const std::shared_ptr<Locus>& owner) override { Owner = owner; }

    std::weak_ptr<Locus> Owner;
};

class FakeLocus : public Locus
{
public:
    std::string Name() const override { return Tag; }
    const std::string& LocusTag() const override { return Tag; }
    void SetLocusTag(const std::string& tag) override { Tag = tag; }
    bool IsCurrent() const override { return Current; }
    void SetIsCurrent(bool isCurrent) override
    {
        if (std::exchange(Current, isCurrent) != isCurrent)
            IsCurrentChanged();
    }
    std::int32_t LocusID() const override { return Id; }
    std::int32_t LocusTagID() const override { return TagId; }
    Date DateLastModified() const override { return Modified; }
    ObjectList& Alleles() override { return AlleleList; }

    std::shared_ptr<Locus> Clone() override
    {
        auto clone = std::make_shared<FakeLocus>();
        static_cast<LocusFields&>(*clone) = *this;
        clone->Tag = Tag;
        for (const auto& member : AlleleList.Objects)
            clone->AlleleList.Add(std::make_shared<FakeAllele>(*As<FakeAllele>(member)));
        return clone;
    }
    /// A row for each step of the repeat unit, named by its size, with a bin of 1 nt.
    void GenerateAlleles() override
    {
        if (RepeatLength < 1)
            throw Failure(ErrorNumber::InvalidArgument, "FakeLocus", "no repeat unit");
        if (FragEnd > 10'000)
            throw Failure(ErrorNumber::InvalidArgument, "FakeLocus", "too many alleles");
        AlleleList.Objects.clear();
        for (std::int32_t size = ShortestAlleleSize; size <= FragEnd; size += RepeatLength)
        {
            const auto allele = AddAllele(std::to_string(size));
            allele->AlleleReal1 = size;
            allele->AlleleReal2 = size - 0.5;
            allele->AlleleReal3 = size + 0.5;
        }
    }
    std::string NextStartAt(const std::string& text) const override { return Stepped(text, 1); }
    std::string PreviousStartAt(const std::string& text) const override
    {
        return Stepped(text, -1);
    }

    std::shared_ptr<FakeAllele> AddAllele(const std::string& name)
    {
        auto allele = std::make_shared<FakeAllele>();
        allele->AlleleText1 = name;
        AlleleList.Add(allele);
        return allele;
    }

    std::string Tag;
    bool Current = true;
    std::int32_t Id = 0;
    std::int32_t TagId = 0;
    Date Modified;
    FakeObjectList AlleleList;

private:
    static std::string Stepped(const std::string& text, int by)
    {
        if (text.size() != 1)
            throw Failure(ErrorNumber::InvalidArgument, "FakeLocus", "not one letter");
        return std::string(1, static_cast<char>(text[0] + by));
    }
};

class FakeProject : public Project
{
public:
    FakeProject(std::string name, std::int32_t id) : m_name(std::move(name)), m_id(id) {}
    std::string Name() const override { return m_name; }
    std::int32_t ProjectID() const override { return m_id; }

private:
    std::string m_name;
    std::int32_t m_id;
};

class FakeLayout : public Grid
{
public:
    std::string Name() const override { return {}; }
    std::int32_t GridID() const override { return m_gridID; }
    void SetGridID(std::int32_t gridID) override { m_gridID = gridID; }

private:
    std::int32_t m_gridID = 0;
};

/// Answers queries from lists and keeps what is saved.
class FakeObjectManager : public ObjectManager
{
public:
    std::shared_ptr<BusinessObject> Create(std::string_view key) override
    {
        Request("Create " + std::string(key), "");
        if (key == "Allele")
            return std::make_shared<FakeAllele>();
        if (key == "Grid")
            return std::make_shared<FakeLayout>();
        return std::make_shared<FakeLocus>();
    }
    std::shared_ptr<ObjectList> Query(std::string_view name, std::string_view a, std::string_view b,
                                      std::string_view ordering, std::int32_t number,
                                      bool flag) override
    {
        Request("Query " + std::string(name) + " " + std::string(ordering),
                " \"" + std::string(a) + std::string(b) + "\" " + std::to_string(number) +
                    (flag ? " true" : " false"));
        return std::make_shared<FakeObjectList>(Lists[std::string(name)]);
    }
    void Save(BusinessObject& object, bool flag) override
    {
        Request("Save " + object.Name(), flag ? " true" : " false");
        Saved.push_back(&object);
    }

    std::shared_ptr<FakeLocus> AddCurrentLocus(const std::string& tag)
    {
        auto locus = std::make_shared<FakeLocus>();
        locus->Tag = tag;
        Lists["CurrentLoci"].Add(locus);
        return locus;
    }
    void AddProject(const std::string& name, std::int32_t id)
    {
        Lists["Projects"].Add(std::make_shared<FakeProject>(name, id));
    }

    std::map<std::string, FakeObjectList> Lists; ///< What each query gives.
    std::vector<const BusinessObject*> Saved;
    std::vector<std::string> Requests; ///< With all that they were given.
    /// Called with every request, for example "Save TPOX"; may raise a failure in its place.
    std::function<void(const std::string&)> Before = [](const std::string&) {};

private:
    void Request(const std::string& what, const std::string& constants)
    {
        Requests.push_back(what + constants);
        Before(what);
    }
};

} // namespace Tamrivo::Fakes
