#include "python/References.h"

#include "foundation/Error.h"
#include "screen/Container.h"

#include <cassert>
#include <utility>
#include <vector>

namespace k7deval::python
{

namespace py = pybind11;

void References::drop()
{
    // Whatever goes away now may take further references with it, so the list is left first.
    std::vector<py::object> dropped;
    for (Reference* reference : all_)
        dropped.push_back(std::move(reference->object_));
}

Reference::Reference(py::object object, ReferencesHandle owner)
    : object_(std::move(object)), owner_(std::move(owner)),
      place_(owner_->all_.insert(owner_->all_.end(), this))
{
}

Reference::~Reference()
{
    owner_->all_.erase(place_);
}

py::handle Reference::get() const
{
    if (!object_)
        throw Error(errors::kObjectNotSet);
    return object_;
}

int visit(const References& references, visitproc visitor, void* argument)
{
    for (const Reference* reference : references.all()) {
        if (PyObject* const object = reference->object_.ptr(); object != nullptr) {
            if (const int result = visitor(object, argument); result != 0)
                return result;
        }
    }
    return 0;
}

const ReferencesHandle& referencesOf(screen::Widget& widget)
{
    screen::Widget* root = &widget;
    while (root->parent() != nullptr)
        root = root->parent();
    auto* referrer = dynamic_cast<Referrer*>(root);
    assert(referrer != nullptr);
    return referrer->references();
}

} // namespace k7deval::python
