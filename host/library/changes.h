#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace Tamrivo
{

class Store;

// Changes of whole loci without an editor. Each is one transaction: it happens to all the loci or
// to none. Tags don't mind case or trailing blanks; one that no locus has raises
// `StoreError::NotFound`. Other failures of the store are raised as they are.

/// Gives a locus another tag. Analysis parameters go on to use it. Raises `StoreError::NameTaken`,
/// `ErrorNumber::InvalidArgument` for a tag of nothing but blanks.
void RenameLocus(Store& store, const std::string& tag, const std::string& newTag);

/// Stores a copy of a locus with all its alleles under another tag. Raises what `RenameLocus`
/// raises.
void DuplicateLocus(Store& store, const std::string& tag, const std::string& newTag);

/// A tag that no locus has yet, for a copy: "TH01 copy", "TH01 copy 2".
std::string TagForCopy(Store& store, const std::string& tag);

void SetDye(Store& store, std::span<const std::string> tags, std::int32_t dyeIndex);

/// Puts the loci into a project, which is made when there is none with the name.
void SetProject(Store& store, std::span<const std::string> tags, const std::string& project);

void DeleteLoci(Store& store, std::span<const std::string> tags);

} // namespace Tamrivo
