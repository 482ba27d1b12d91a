#pragma once

#include "automation/object.h"
#include "component/com.h"

namespace Tamrivo
{

/// A `VARIANT` that is cleared in the end.
class Variant
{
public:
    Variant() { VariantInit(&m_variant); }
    Variant(const Variant&) = delete;
    Variant& operator=(const Variant&) = delete;
    ~Variant() { VariantClear(&m_variant); }

    operator const VARIANT&() const { return m_variant; }
    VARIANT* Out() { return &m_variant; }
    /// The content, which is the caller's from now on.
    VARIANT Take()
    {
        const VARIANT taken = m_variant;
        VariantInit(&m_variant);
        return taken;
    }

private:
    VARIANT m_variant;
};

/// What a client gives. Raises `ErrorNumber::NotANumber` for a kind that automation doesn't have.
Automation::Value ToValue(const VARIANT& variant);

/// What a client gets, as its own.
VARIANT NewVariant(const Automation::Value& value);

/// An object as a client sees it, with a reference for it; null for none.
IDispatch* NewFace(const Automation::ObjectPointer& object);

/// The library's own object behind a client's reference, or the client's object as one to be called
/// by name; null for none.
Automation::ObjectPointer ObjectOf(IDispatch* client);

} // namespace Tamrivo
