#pragma once

#include "foundation/DataInterface.h"
#include "latebound/NamedObject.h"
#include "latebound/Wrapper.h"

#include <memory>

namespace k7deval::latebound
{

/// The data interface on a host's object; null for no object. Texts that stand for numbers are
/// read under the region.
std::shared_ptr<DIServer> serverOn(ObjectHandle object, Region region);

/// The host's object behind a data interface of this kind; null for any other.
ObjectHandle objectBehind(const std::shared_ptr<DIServer>& server);

/// The message sink on a host's object; null for no object.
std::shared_ptr<MessageSink> sinkOn(ObjectHandle object);

/// The host's object behind a message sink of this kind; null for any other.
ObjectHandle objectBehind(const std::shared_ptr<MessageSink>& sink);

/// The type name under which the data interface hands out a collection of parameters.
inline constexpr const char* kParameterCollection = "DI1Params";

/// The parameters of a host's collection, in its order.
DIParameterList parametersIn(ObjectHandle collection, Region region);

} // namespace k7deval::latebound
