#pragma once

#include "contracts/allele_pane.h"
#include "contracts/locus.h"
#include "core/collection.h"

#include <memory>
#include <string>
#include <variant>

namespace Tamrivo
{

/// What may stand in a wizard's parameter collection.
using Parameter = std::variant<std::shared_ptr<Locus>, std::shared_ptr<BinningContext>,
                               std::int16_t, std::string>;

/// The parameters that the pages of a wizard share with whoever started it. It outlives the wizard,
/// so that the starter reads the results from it.
using ParameterCollection = Collection<Parameter>;

/// Keys of a parameter collection.
namespace ParameterKey
{
inline constexpr const char* Locus = "Locus";             ///< The `Locus` to edit.
inline constexpr const char* Binning = "Binning";         ///< A `BinningContext`.
inline constexpr const char* NewLocus = "NewLocus";       ///< The `Locus` that was new when saved.
inline constexpr const char* NewSaveAs = "NewSaveAs";     ///< The `Locus` saved after a Save As.
inline constexpr const char* SaveLocusAs = "SaveLocusAs"; ///< The `Locus` to store under a new tag.
inline constexpr const char* SaveTimes = "SaveTimes";     ///< Number of new tags, 16 bits.
inline constexpr const char* LocusName = "LocusName";     ///< Never read.
} // namespace ParameterKey

/// The item under `key` as a `T`. Raises `ErrorNumber::InvalidArgument` when the key is missing,
/// `ErrorNumber::NoObject` when something else stands there.
template <class T>
T ParameterItem(const ParameterCollection& parameters, const std::string& key)
{
    if (const T* item = std::get_if<T>(&parameters.Item(key)))
        return *item;
    throw Failure(ErrorNumber::NoObject, "Parameters",
                  "The parameter \"" + key + "\" is of another kind");
}

} // namespace Tamrivo
