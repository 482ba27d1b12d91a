#pragma once

#include "host/loci/dyes.h"
#include "host/store/history_record.h"
#include "host/store/locus_state.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Tamrivo
{

// The state of an object as the history keeps it: a JSON object with its fields by name and the
// number of the form, "Format". What equals the initial value of a new allele is left out. Texts
// and numbers that JSON has no form for stand as `JsonText` writes them.

/// The state of an analysis parameter.
struct ParameterState
{
    std::string Name;
    std::int32_t LocusTagListCount = 0;
    std::vector<std::int32_t> LocusTagIDs;
};

std::string ContentOf(const LocusState& state);
std::string ContentOf(const ParameterState& state);
std::string ContentOf(const Dyes& dyes);
/// Of what has nothing but a value.
std::string ContentOfValue(const std::string& name, const std::string& value);

/// The state that the record of a locus keeps. Raises `StoreError::NewerVersion` for one that a
/// newer version of this program has written, `StoreError::NotAStore` for a damaged one, and
/// `StoreError::NotFound` for the record of a deletion.
LocusState LocusStateOf(const HistoryRecord& record);

} // namespace Tamrivo
