#pragma once

#include "qt/Operator.h"
#include "qt/ScreenComparison.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace k7deval::qt::test
{

/// An operator at the screen of a tool. At the end of any test the screen shows what the tool has.
template <class Rig, class View> struct ScreenOperator {
    template <class... Facts>
    explicit ScreenOperator(Facts&&... facts) : rig(std::forward<Facts>(facts)...)
    {
    }
    ScreenOperator(const ScreenOperator&) = delete;
    ScreenOperator& operator=(const ScreenOperator&) = delete;
    ~ScreenOperator() { EXPECT_EQ(differences(), std::vector<std::string>()); }

    Rig rig;
    View view{rig.tool};
    Operator hands{view};

    [[nodiscard]] std::vector<std::string> differences() const
    {
        settle();
        return test::differences(rig.tool, view);
    }
};

} // namespace k7deval::qt::test
