#pragma once

namespace Tamrivo
{

class Store;

/// Makes the store ask the person for the reason of each change, when it needs one. Who gives none
/// cancels the change: `Cancelled`.
void AskForReasons(Store& store);

} // namespace Tamrivo
