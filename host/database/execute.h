#pragma once

#include <soci/soci.h>

#include <string>

namespace Tamrivo
{

/// Executes one statement:
///
///     Execute(session, "SELECT Name FROM Project WHERE ProjectID = :ID", soci::use(number),
///             soci::into(name));
///
/// A first row goes to what `soci::into` names. SOCI's own form, `session << "...", use(a),
/// use(b)`, executes what it has got together also while a failure is on its way past it, such as a
/// lack of memory for the second value, and ends the program when that fails in turn.
template <class... Values>
void Execute(soci::session& session, const std::string& sql, const Values&... values)
{
    soci::statement statement(session);
    (statement.exchange(values), ...);
    statement.alloc();
    statement.prepare(sql, soci::details::st_one_time_query);
    statement.define_and_bind();
    statement.execute(true);
}

} // namespace Tamrivo
