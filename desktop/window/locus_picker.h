#pragma once

#include <optional>
#include <string>

class QString;
class QWidget;

namespace Tamrivo
{

class Store;

/// Lets the person pick one of the store's current loci, from a list that a typed text narrows
/// down. None when the person picks none. Raises failures of the store.
std::optional<std::string> PickLocus(Store& store, const QString& title, QWidget* parent);

} // namespace Tamrivo
