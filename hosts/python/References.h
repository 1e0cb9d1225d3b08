#pragma once

#include "screen/Widget.h"

#include <list>
#include <memory>
#include <pybind11/pybind11.h>

namespace k7deval::python
{

class Reference;

/// The objects of the host that a control holds, one entry for each reference to one. Through this
/// list Python's garbage collector sees them, so that a host that holds a control and is held by
/// it goes away with it.
class References
{
public:
    [[nodiscard]] const std::list<Reference*>& all() const { return all_; }
    /// Lets go of all of them. Whoever still asks for one gets error 91.
    void drop();

private:
    friend class Reference;
    std::list<Reference*> all_;
};
using ReferencesHandle = std::shared_ptr<References>;

/// One object of the host, held as long as this is there.
class Reference
{
public:
    Reference(pybind11::object object, ReferencesHandle owner);
    ~Reference();
    Reference(const Reference&) = delete;
    Reference& operator=(const Reference&) = delete;

    [[nodiscard]] const ReferencesHandle& owner() const { return owner_; }
    /// Error 91 when it was dropped.
    [[nodiscard]] pybind11::handle get() const;

private:
    friend class References;
    friend int visit(const References& references, visitproc visitor, void* argument);

    pybind11::object object_;
    ReferencesHandle owner_;
    std::list<Reference*>::iterator place_;
};

/// Shows the objects to the garbage collector.
int visit(const References& references, visitproc visitor, void* argument);

/// A control that holds objects of the host.
class Referrer
{
public:
    Referrer() = default;
    Referrer(const Referrer&) = delete;
    Referrer& operator=(const Referrer&) = delete;
    virtual ~Referrer() = default;

    [[nodiscard]] const ReferencesHandle& references() const { return references_; }

private:
    ReferencesHandle references_ = std::make_shared<References>();
};

/// The references of the control that a widget stands on.
const ReferencesHandle& referencesOf(screen::Widget& widget);

} // namespace k7deval::python
