#pragma once

#include <string>

namespace Tamrivo
{

class Store;

/// Stores a new project. Raises `StoreError::NameTaken`, `ErrorNumber::InvalidArgument` for an
/// empty name.
void AddNewProject(Store& store, const std::string& name);

/// Renames the project, in its loci too. Raises `StoreError::NotFound`, `StoreError::NameTaken`,
/// `ErrorNumber::InvalidArgument` for an empty name.
void RenameProject(Store& store, const std::string& name, const std::string& newName);

/// Deletes the project. Raises `StoreError::NotFound`, and `ErrorNumber::InvalidArgument` when loci
/// are in it.
void DeleteProject(Store& store, const std::string& name);

} // namespace Tamrivo
