#include "host/database/change_notes.h"

#include <pwd.h>
#include <unistd.h>

#include <array>
#include <cerrno>

namespace Tamrivo
{

namespace
{

std::string LoginName()
{
    // The user that the process runs as, not what the environment says.
    const passwd* user = getpwuid(geteuid());
    return user ? user->pw_name : std::to_string(geteuid());
}

std::string MachineName()
{
    std::array<char, 256> name{};
    return gethostname(name.data(), name.size() - 1) == 0 ? name.data() : "";
}

} // namespace

ChangeNotes NotesOfThisProcess()
{
    return {LoginName(),   std::string(program_invocation_short_name) + " " TAMRIVO_VERSION,
            MachineName(), {},
            false,         {}};
}

} // namespace Tamrivo
