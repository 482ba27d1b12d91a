#pragma once

#include <string>
#include <string_view>

namespace Tamrivo
{

/// The store to open when none is named: the environment's `TAMRIVO_STORE`, else
/// "tamrivo/store.sqlite" in the user's data directory (`XDG_DATA_HOME`, else "~/.local/share").
std::string DefaultStoreAddress();

/// Whether the address is one of a PostgreSQL database ("postgresql://..." or "postgres://...").
bool IsPostgresqlAddress(std::string_view address);

/// The file of an SQLite store: the address itself, or what stands behind "sqlite://". Raises
/// `ErrorNumber::InvalidArgument` when that is empty, or has a scheme of another kind.
std::string SqlitePath(std::string_view address);

/// The address as people may see it: stars stand for a password in it.
std::string AddressWithoutPassword(const std::string& address);

} // namespace Tamrivo
