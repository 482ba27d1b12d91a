#pragma once

#include "contracts/allele_pane.h"
#include "contracts/object_manager.h"
#include "host/alleles/allele_columns.h"
#include "host/alleles/allele_problems.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Tamrivo
{

/// The allele pane as a real part: the rows of a locus, what a person does to them, and whether
/// they make a valid list. It works on `Locus::Alleles` itself and keeps the rows by size: a list
/// that comes in another order is shown by size, and put in that order by the first change. Rows of
/// one size stand in the locus's order. The row that a person is editing keeps its place until it
/// is left. Rows are counted from 1.
///
/// Events come once a change is complete: `Changed`, then `AlleleEdited` or `ListChanged`, then
/// `ValidityChanged`. `ListChanged` is raised for whatever adds or removes rows of the locus on
/// show, a generation included, and not for turning to another locus. `ValidityChanged` is raised
/// when the answer differs from the last one; the pane starts empty and valid.
class AllelePane : public PaneAlleleList
{
public:
    explicit AllelePane(ObjectManagerGlobal& objects) : m_objects(objects) {}

    /// Also forgets what could be undone. No locus: the pane is empty.
    void SetLocus(const std::shared_ptr<Locus>& oLocus) override;
    void RefreshAlleles() override;

    /// None before the first `SetLocus`.
    const std::shared_ptr<Locus>& ShownLocus() const { return m_locus; }
    const AlleleRows& Rows() const { return m_rows; }
    /// Why the list is not valid; empty when it is.
    const std::vector<AlleleProblem>& Problems() const { return m_problems; }
    bool IsValid() const { return m_problems.empty(); }
    /// What is doubtful in the list, valid or not.
    const std::vector<AlleleProblem>& Warnings() const { return m_warnings; }
    bool CanUndo() const { return !m_done.empty(); }
    /// Number of actions that can be taken back.
    std::size_t Steps() const { return m_done.size(); }
    bool CanRedo() const { return !m_undone.empty(); }

    /// For the front end that shows the pane: rows, problems or what can be undone have changed.
    Event<> Changed;

    // What a person does, behind host/alleles/pane_user.h. Each raises `User::Refusal` for what
    // can't be done and marks the rows that it changes as `AlleleOrigin::Edited`. A row's number of
    // repeats follows its name and size.

    /// Adds a row after another one, one repeat unit longer or half-way to the next, whichever is
    /// nearer, or without one at the end; its bin as wide as the confidence interval that counts,
    /// still without a name. Gives its number.
    std::int32_t AddRow(std::optional<std::int32_t> after);
    /// What `AddRowOfSize` would add, see `FieldsOfSize`.
    AlleleFields FieldsOfNew(double size) const;
    /// Adds a row of a size, nt, in its place. Gives its number.
    std::int32_t AddRowOfSize(double size);
    void RemoveRow(std::int32_t row) { RemoveRows({row}); }
    /// Removes several rows in one step; a row may be named twice.
    void RemoveRows(const std::vector<std::int32_t>& rows);
    /// Enters a block of cells in one step, from a row and a column on (0-based, among
    /// `AlleleColumns`). Rows that the list doesn't have yet are added, as by `AddRow`. Cells of
    /// columns that follow from others are passed over. Nothing is entered when a cell can't be, or
    /// a line reaches past the last column.
    void PasteCells(std::int32_t row, std::size_t column,
                    const std::vector<std::vector<std::string>>& cells);
    /// Gives a cell another value. The row stays where it is until `LeaveRow`.
    void EditCell(std::int32_t row, const AlleleColumn& column, std::string_view text);
    /// Makes the list that of the alleles in one step. Rows whose names stay keep being the same
    /// alleles; names that come twice pair off in their order.
    void ReplaceRows(const std::vector<AlleleFields>& alleles);
    /// The person turns away from the row, which then goes to its place by size. Nothing that could
    /// be undone: it belongs to the edit. Any change but an edit of the same row leaves it as well.
    void LeaveRow();
    /// Takes back what one action did; a generation of the list is one.
    void Undo();
    /// Makes the change again that was taken back last.
    void Redo();

private:
    /// A row, and what it is to hold.
    struct Edit
    {
        std::shared_ptr<Allele> Row;
        AlleleFields Fields;
    };

    /// A change that is still to be made. Making it turns it into its own inverse.
    struct Change
    {
        AlleleRows ToRemove = {};
        AlleleRows ToAdd = {};
        std::vector<Edit> Edits = {};
    };

    /// A row that keeps its place, 0-based, whatever its size; null: none does.
    struct HeldRow
    {
        std::shared_ptr<Allele> Row;
        std::ptrdiff_t Place;
    };

    const std::shared_ptr<Allele>& RowAt(std::int32_t row) const;
    std::int32_t NumberOf(const Allele& allele) const;
    std::shared_ptr<Allele> NewAllele(const AlleleFields& fields) const;
    void RequireLocus() const;

    void Do(Change change, HeldRow held = {});
    void Make(Change& change);
    void Step(std::vector<Change>& from, std::vector<Change>& to);
    void Arrange(AlleleRows rows);
    void Announce(const Change& change);
    void Show(AlleleRows rows);
    void AnnounceValidity();

    ObjectManagerGlobal& m_objects;
    std::shared_ptr<Locus> m_locus;
    AlleleRows m_rows;
    HeldRow m_held{};
    std::vector<AlleleProblem> m_problems;
    std::vector<AlleleProblem> m_warnings;
    bool m_announcedValid = true;
    std::vector<Change> m_done;
    std::vector<Change> m_undone;
};

} // namespace Tamrivo
