#include "component/windows/registry_writer.h"

#include <system_error>

namespace Tamrivo::Registry
{

namespace
{

/// An open key.
class Key
{
public:
    Key() = default;
    Key(const Key&) = delete;
    Key& operator=(const Key&) = delete;
    ~Key()
    {
        if (m_key)
            RegCloseKey(m_key);
    }

    operator HKEY() const { return m_key; }
    HKEY* Out() { return &m_key; }

private:
    HKEY m_key = nullptr;
};

void Require(LSTATUS status, const std::wstring& key)
{
    if (status != ERROR_SUCCESS)
        throw std::system_error(status, std::system_category(),
                                "The registry key " + std::string(key.begin(), key.end()));
}

/// What has been done to the registry, and how it is undone.
class Journal
{
public:
    explicit Journal(HKEY root) : m_root(root) {}

    void Write(const Value& value)
    {
        CreateKey(value.Key);
        m_former.push_back({value, Read(m_root, value.Key, value.Name)});
        Set(value.Key, value.Name, value.Text);
    }

    /// Goes on where a step fails: as much as can be comes back.
    void Undo()
    {
        for (auto step = m_former.rbegin(); step != m_former.rend(); ++step)
        {
            const auto& [value, text] = *step;
            if (text)
                RegSetKeyValueW(m_root, value.Key.c_str(), value.Name.c_str(), REG_SZ,
                                text->c_str(), Size(*text));
            else
                RegDeleteKeyValueW(m_root, value.Key.c_str(), value.Name.c_str());
        }
        for (auto key = m_created.rbegin(); key != m_created.rend(); ++key)
            RegDeleteKeyW(m_root, key->c_str());
    }

private:
    struct Former
    {
        Value Written;
        std::optional<std::wstring> Text;
    };

    static DWORD Size(const std::wstring& text)
    {
        return static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
    }

    /// Makes the key and those that it lies in, each for itself, to know which are new.
    void CreateKey(const std::wstring& path)
    {
        for (auto end = path.find(L'\\');; end = path.find(L'\\', end + 1))
        {
            const std::wstring part = path.substr(0, end);
            Key key;
            DWORD disposition = 0;
            Require(RegCreateKeyExW(m_root, part.c_str(), 0, nullptr, 0, KEY_READ, nullptr,
                                    key.Out(), &disposition),
                    part);
            if (disposition == REG_CREATED_NEW_KEY)
                m_created.push_back(part);
            if (end == path.npos)
                return;
        }
    }

    void Set(const std::wstring& key, const std::wstring& name, const std::wstring& text) const
    {
        Require(
            RegSetKeyValueW(m_root, key.c_str(), name.c_str(), REG_SZ, text.c_str(), Size(text)),
            key);
    }

    HKEY m_root;
    std::vector<Former> m_former;
    std::vector<std::wstring> m_created;
};

/// Whether a key has neither values nor keys.
bool IsEmpty(HKEY root, const std::wstring& path)
{
    Key key;
    DWORD keys = 0;
    DWORD values = 0;
    return RegOpenKeyExW(root, path.c_str(), 0, KEY_READ, key.Out()) == ERROR_SUCCESS &&
           RegQueryInfoKeyW(key, nullptr, nullptr, nullptr, &keys, nullptr, nullptr, &values,
                            nullptr, nullptr, nullptr, nullptr) == ERROR_SUCCESS &&
           keys == 0 && values == 0;
}

} // namespace

std::optional<std::wstring> Read(HKEY root, const std::wstring& key, const std::wstring& name)
{
    DWORD size = 0;
    const auto get = [&](void* text) {
        return RegGetValueW(root, key.c_str(), name.c_str(), RRF_RT_REG_SZ, nullptr, text, &size);
    };
    if (get(nullptr) != ERROR_SUCCESS)
        return std::nullopt;
    std::wstring text(size / sizeof(wchar_t), L'\0');
    Require(get(text.data()), key);
    return text.c_str();
}

bool MayWrite(HKEY root)
{
    Key key;
    return RegOpenKeyExW(root, L"Software\\Classes\\CLSID", 0, KEY_WRITE, key.Out()) ==
           ERROR_SUCCESS;
}

void Write(HKEY root, const std::vector<Value>& values)
{
    Journal journal(root);
    try
    {
        for (const Value& value : values)
            journal.Write(value);
    }
    catch (...)
    {
        journal.Undo();
        throw;
    }
}

void Remove(HKEY root, const std::vector<Value>& values)
{
    for (const Value& value : values)
    {
        const LSTATUS status = RegDeleteKeyValueW(root, value.Key.c_str(), value.Name.c_str());
        if (status != ERROR_FILE_NOT_FOUND)
            Require(status, value.Key);
    }
    // From the innermost key outwards, as far as the project's own keys go.
    for (auto value = values.rbegin(); value != values.rend(); ++value)
    {
        if (IsEmpty(root, value->Key))
            Require(RegDeleteKeyW(root, value->Key.c_str()), value->Key);
    }
}

} // namespace Tamrivo::Registry
