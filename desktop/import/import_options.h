#pragma once

#include "host/panels/import_plan.h"
#include "host/panels/panel_format.h"

#include <QWidget>

#include <functional>
#include <optional>

class QBoxLayout;
class QCheckBox;
class QComboBox;
class QLabel;

namespace Tamrivo
{

/// What a person says about an import besides its panels and its project: what the files are, which
/// set of bins is taken, whether missing dyes are added and whether loci that differ are updated.
/// But for the first, only what matters for the files is shown.
class ImportOptions : public QWidget
{
public:
    explicit ImportOptions(QWidget* parent);

    /// Offers these sets of bins, the first one chosen.
    void OfferBinSets(const std::vector<std::string>& names);
    /// What the files are; none: their content tells.
    std::optional<PanelFormat> Format() const;
    /// The chosen set of bins; empty where there is none to choose.
    std::string BinSet() const;

    bool AddDyes() const;
    bool Update() const;
    /// Shows what could be done about loci that can't come in, and what has been chosen.
    void ShowPlan(const ImportPlan& plan);

    std::function<void()> onReading; ///< The files are to be read otherwise.
    std::function<void()> onPlan;    ///< Dyes or updates have been ticked, or no longer.

private:
    void AddFormat(QBoxLayout& row);

    QComboBox* m_format;
    QLabel* m_binsCaption;
    QComboBox* m_bins;
    QCheckBox* m_addDyes;
    QCheckBox* m_update;
};

} // namespace Tamrivo
