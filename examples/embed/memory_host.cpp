#include "examples/embed/memory_host.h"

#include "controls/text_field.h"

#include <charconv>
#include <iostream>

namespace Embed
{

using namespace Tamrivo;

namespace
{

class Ended : public LauncherResult
{
public:
    explicit Ended(bool isCancelled) : m_isCancelled(isCancelled) {}
    bool Cancelled() const override { return m_isCancelled; }

private:
    bool m_isCancelled;
};

class PrintedContextType : public ReportContextType
{
    void Define(std::int32_t identifier, const std::string& name, double, IServiceAccess&) override
    {
        std::cout << "report context type " << identifier << ' ' << name << '\n';
    }
};

class MemoryTagEntry : public LocusTagEntry
{
public:
    explicit MemoryTagEntry(const MemoryStore& store) : m_store(store) {}
    std::int32_t TagID(std::int32_t) const override { return m_id; }
    void SetTagName(const std::string& tag) override { m_tag = tag; }
    std::int32_t Load() override
    {
        m_id = m_store.NumberOf(m_tag);
        return m_id > 0 ? LoadResult::Loaded : LoadResult::NoSuchTag;
    }

private:
    const MemoryStore& m_store;
    std::string m_tag;
    std::int32_t m_id = 0;
};

/// A pane without a picture.
class MemoryPane : public PaneAlleleList
{
    void SetLocus(const std::shared_ptr<Locus>& oLocus) override { m_locus = oLocus; }
    void RefreshAlleles() override
    {
        std::cout << "the pane shows " << m_locus->Alleles().Count() << " alleles\n";
    }

    std::shared_ptr<Locus> m_locus;
};

/// The store, when an object manager of the caller's own is asked for.
class SharedStore : public ObjectManager
{
public:
    explicit SharedStore(MemoryStore& store) : m_store(store) {}
    std::shared_ptr<BusinessObject> Create(std::string_view key) override
    {
        return m_store.Create(key);
    }
    std::shared_ptr<ObjectList> Query(std::string_view name, std::string_view a, std::string_view b,
                                      std::string_view ordering, std::int32_t c, bool d) override
    {
        return m_store.Query(name, a, b, ordering, c, d);
    }
    void Save(BusinessObject& object, bool recursive) override { m_store.Save(object, recursive); }

private:
    MemoryStore& m_store;
};

} // namespace

std::shared_ptr<ObjectManager> MemoryHost::NewObjectManager()
{
    return std::make_shared<SharedStore>(Store);
}

std::shared_ptr<PageBase> MemoryHost::NewPageBase()
{
    return std::make_shared<MemoryPageBase>();
}

std::shared_ptr<ServiceBase> MemoryHost::NewServiceBase()
{
    return std::make_shared<ServiceBase>();
}

std::shared_ptr<ReportContextType> MemoryHost::NewReportContextType()
{
    return std::make_shared<PrintedContextType>();
}

std::shared_ptr<LocusTagEntry> MemoryHost::NewLocusTagEntry()
{
    return std::make_shared<MemoryTagEntry>(Store);
}

std::shared_ptr<PaneAlleleList> MemoryHost::NewPaneAlleleList()
{
    return std::make_shared<MemoryPane>();
}

std::shared_ptr<Gridocx> MemoryHost::NewGrid()
{
    return std::make_shared<MemoryGrid>();
}

MessageAnswer MemoryHost::ShowMessage(const std::string& text, std::int32_t kind,
                                      const std::string& title)
{
    std::cout << "message " << title << ": " << text << '\n';
    return kind == MessageKind::ExclamationYesNo ? MessageAnswer::No : MessageAnswer::Ok;
}

void MemoryHost::ReportError(std::string_view, std::string_view className,
                             std::string_view procedureName, const ErrorRecord& error,
                             std::string_view, bool)
{
    std::cout << "report " << className << ' ' << procedureName << ": " << error.Description
              << '\n';
}

bool MemoryHost::KeyExists(const Keyed& container, const std::string& key) const
{
    return container.KeyExists(key.substr(0, key.find_last_not_of(' ') + 1));
}

bool MemoryHost::IsIntegerInRange(const TextField& control, std::int32_t low,
                                  std::int32_t high) const
{
    const std::string& text = control.Text();
    std::int32_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    return error == std::errc() && end == text.data() + text.size() && value >= low &&
           value <= high;
}

std::shared_ptr<LauncherResult> MemoryHost::Start(
    std::string_view wizard, const std::shared_ptr<ParameterCollection>& parameters,
    const std::shared_ptr<BusinessObject>&, std::int32_t, std::int32_t, std::int32_t, std::int32_t,
    std::int32_t, std::int32_t, std::string_view, std::int32_t, std::int32_t)
{
    const bool isEditor = wizard == LocusEditorWizard.Name;
    const Created page =
        Classes.Create(isEditor ? "Tamrivo.LocusEditorPage" : "Tamrivo.SaveAsLocusPage");
    const auto base = std::static_pointer_cast<MemoryPageBase>(page.As<IPageAccess>().Page());
    base->Shared = parameters;
    base->Initialize(nullptr);
    base->Activate();
    std::cout << "wizard " << wizard << " started\n";

    const bool isCompleted =
        Person.find(wizard)->second({page.As<UserControl>(), page.As<User::FormUser>(), *base});
    if (isCompleted)
        base->Save();
    std::cout << "wizard " << wizard << (isCompleted ? " finished\n" : " cancelled\n");
    return std::make_shared<Ended>(!isCompleted);
}

} // namespace Embed
