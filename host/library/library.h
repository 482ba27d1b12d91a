#pragma once

#include "core/dates.h"
#include "host/library/folded_texts.h"
#include "host/library/name_list.h"
#include "host/loci/dyes.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace Tamrivo
{

struct Finding;
class Store;

/// A current locus as a list of very many shows it.
struct LibraryLocus
{
    std::int32_t LocusID = 0; ///< Also the number of its tag.
    std::string Tag;
    std::string Name;
    std::string Accession;
    std::uint32_t Panel = 0;   ///< Position in `Library::Panels`: the primer set.
    std::uint32_t Project = 0; ///< Position in `Library::Projects`.
    std::int32_t DyeIndex = 0;
    std::int32_t FragStart = 0;    ///< nt
    std::int32_t FragEnd = 0;      ///< nt
    std::int32_t RepeatLength = 0; ///< nt
    std::int32_t Alleles = 0;
    std::int32_t VirtualAlleles = 0; ///< Of the alleles, those not in the ladder.
    std::int32_t UsedBy = 0; ///< Analysis parameters that have the tag in their stored list.
    Date Changed;
};

/// An analysis parameter with those of its loci that are in the library.
struct LibraryParameter
{
    std::string Name;
    std::vector<std::size_t> Loci; ///< Positions in the library, ascending.
};

/// All current loci of a store as they were when they were read, in the order of their numbers:
/// what is shown and searched, without what an editor needs. Reading them takes as many queries as
/// there are tables, whatever the number of loci.
class Library
{
public:
    /// Raises failures of the store, which must outlive the library.
    explicit Library(Store& store);

    const std::vector<LibraryLocus>& Loci() const { return m_loci; }
    const Dyes& LabDyes() const { return m_dyes; }
    const NameList& Panels() const { return m_panels; }
    const NameList& Projects() const { return m_projects; }
    /// Ordered by name without minding case.
    const std::vector<LibraryParameter>& Parameters() const { return m_parameters; }
    /// The position of a locus, by its number.
    std::optional<std::size_t> Find(std::int32_t locusID) const;

    /// Of each locus: tag, name, panel, project and accession. Made when first asked for.
    const FoldedTexts& Words();
    /// Of each locus: the names of its alleles. Read when first asked for, which raises failures
    /// of the store.
    const FoldedTexts& AlleleNames();
    /// Of each locus: the names of the rules by which a check of all loci finds something in it.
    /// Checked when first asked for, unless `TakeFindings` has told; raises failures of the store.
    const FoldedTexts& Problems();
    /// Takes what a check of all loci has found.
    void TakeFindings(const std::vector<Finding>& found);

private:
    void ReadLoci();
    void CountAlleles();
    void ReadParameters();

    Store& m_store;
    Dyes m_dyes;
    std::vector<LibraryLocus> m_loci;
    NameList m_panels;
    NameList m_projects;
    std::vector<LibraryParameter> m_parameters;
    std::optional<FoldedTexts> m_words;
    std::optional<FoldedTexts> m_alleleNames;
    std::optional<FoldedTexts> m_problems;
};

} // namespace Tamrivo
