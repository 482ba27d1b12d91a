#pragma once

#include <QStringList>

namespace Tamrivo
{

class TextField;
class UserControl;

/// Why a page isn't valid, as far as it tells: the tips of its marked fields and the problems of
/// its allele list, each once.
QStringList ReasonsOf(const UserControl& page);

/// The first marked field in the page's focus order; null when there is none.
TextField* FirstFault(const UserControl& page);

} // namespace Tamrivo
