#include "desktop/window/given_needs.h"

#include "desktop/library/library_view.h"
#include "desktop/window/parameter_view.h"
#include "desktop/window/workbench.h"
#include "host/framework/host_application.h"

namespace Tamrivo
{

Needs GivenBy(const Workbench& bench)
{
    if (!bench.HasStore())
        return {};
    const bool mayWrite = !bench.Host().Store().IsReadOnly();
    // What is highlighted on the selector's page is asked for when a command begins.
    const bool isSelector = bench.IsSelectorShown();
    const std::size_t chosen = bench.Loci().ChosenCount();
    const ParameterView* parameter = bench.Parameter().View();
    Needs given = Need::Store;
    given.setFlag(Need::Writing, mayWrite);
    given.setFlag(Need::Table, !isSelector);
    given.setFlag(Need::Parameter, parameter != nullptr);
    given.setFlag(Need::Changes, parameter != nullptr && parameter->IsChanged() && mayWrite);
    given.setFlag(Need::OneLocus, isSelector || chosen == 1);
    given.setFlag(Need::SomeLoci, isSelector || chosen > 0);
    given.setFlag(Need::TwoLoci, !isSelector && chosen == 2);
    return given;
}

} // namespace Tamrivo
