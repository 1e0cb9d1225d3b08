#include "python/Binding.h"
#include "python/HostErrors.h"

#include <memory>

PYBIND11_MODULE(_core, module)
{
    using namespace k7deval::python;
    module.doc() = "The compiled part of k7deval.";
    translateErrors(valuesModule());
    const auto state = std::make_shared<HostState>();
    bindPIDFunctions(module);
    bindUtilityFunctions(module, state);
    bindTextFunctions(module, state);
    bindDataSet(module);
    bindParameters(module);
    bindSiteRecords(module);
    bindSite(module);
    bindWidgets(module);
    bindButtons(module);
    bindLists(module);
    bindRecords(module);
    bindTree(module);
    bindGrid(module);
    bindReport(module);
    bindSetUpPage(module, state);
    bindResultPage(module, state);
    bindSevenDay(module, state);
    bindHistogramTools(module, state);
    bindSelection(module, state);
}
