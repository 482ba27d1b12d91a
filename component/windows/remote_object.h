#pragma once

#include "automation/object.h"
#include "component/com.h"

namespace Tamrivo
{

/// A client's object, called by name: through `IDispatchEx` where it has that, since objects of
/// script engines tell the numbers of their members there alone.
class RemoteObject final : public Automation::Object
{
public:
    explicit RemoteObject(IDispatch* client) : m_client(client) { m_client->AddRef(); }
    ~RemoteObject() override { m_client->Release(); }

    Automation::Value Call(std::string_view name, Automation::Access how,
                           const Automation::List& arguments) override;

    /// The client's object with a reference for the caller.
    IDispatch* NewReference() const
    {
        m_client->AddRef();
        return m_client;
    }

private:
    DISPID NumberOf(std::string_view name) const;

    IDispatch* m_client;
};

} // namespace Tamrivo
