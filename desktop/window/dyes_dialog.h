#pragma once

#include "host/loci/dyes.h"

#include <QDialog>

class QTableWidget;

namespace Tamrivo
{

class Actions;
class Store;

/// The properties of the store: which dyes the lab has. Each has a row with its entry in the
/// editor, its colour, its name and the number of loci that have it.
class DyesDialog : public QDialog
{
public:
    /// Store and actions must outlive the dialog. Raises failures of the store.
    DyesDialog(Store& store, const Actions& actions, QWidget* parent = nullptr);

    /// The dyes that the rows say. Raises `ErrorNumber::InvalidArgument` for some that can't be.
    Dyes Chosen() const;

private:
    void AddRow(const Dye& dye, std::size_t loci);
    void AddDye();
    void RemoveLast();
    /// Stores the dyes; asks first when loci would be shown in another colour.
    void Save();
    bool Recolors(const Dyes& dyes) const;

    Store& m_store;
    const Actions& m_actions;
    Dyes m_before;
    std::vector<std::size_t> m_loci; ///< By dye.
    QTableWidget* m_table;
};

} // namespace Tamrivo
