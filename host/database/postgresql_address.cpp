#include "host/database/postgresql_address.h"

#include "core/error.h"
#include "host/database/address.h"

#include <libpq-fe.h>

#include <memory>
#include <string_view>

namespace Tamrivo
{

namespace
{

constexpr const char* ConnectTimeoutSeconds = "5";

} // namespace

std::string ConnectionText(const std::string& address)
{
    // What the parser complains of may be the password.
    const std::unique_ptr<PQconninfoOption, decltype(&PQconninfoFree)> options(
        PQconninfoParse(address.c_str(), nullptr), &PQconninfoFree);
    if (!options)
        throw Failure(ErrorNumber::InvalidArgument, "Store",
                      "\"" + AddressWithoutPassword(address) +
                          "\" is no address of a PostgreSQL database, which is "
                          "postgresql://USER@SERVER/DATABASE with other characters than letters "
                          "and digits as %XX");

    std::string text;
    for (const PQconninfoOption* option = options.get(); option->keyword; ++option)
    {
        const bool isTimeout = std::string_view(option->keyword) == "connect_timeout";
        const char* value = option->val ? option->val : isTimeout ? ConnectTimeoutSeconds : nullptr;
        if (!value)
            continue;
        text.append(option->keyword).append("='");
        for (const char* character = value; *character; ++character)
        {
            if (*character == '\'' || *character == '\\')
                text += '\\';
            text += *character;
        }
        text += "' ";
    }
    return text;
}

} // namespace Tamrivo
