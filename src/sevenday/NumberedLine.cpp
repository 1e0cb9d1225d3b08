#include "sevenday/NumberedLine.h"

#include "foundation/TextFunctions.h"

namespace k7deval
{

namespace
{

constexpr std::int32_t kSeverity = 4;

} // namespace

void postLine(const std::shared_ptr<MessageSink>& irm, NumberedLine line, const Error& error)
{
    if (!irm)
        return;
    const std::string number = withZerosAhead(std::to_string(static_cast<int>(line)), 3);
    irm->Post(kSeverity, "DEval-" + number + ": " + std::to_string(error.number()) + ", " +
                             error.description());
}

} // namespace k7deval
