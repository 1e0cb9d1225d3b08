#include "sitedb/formats/TestTaker.h"

namespace k7deval::sitedb
{

std::size_t TestTaker::take(const QaTest& test, const CalibratedScale& scale,
                            const OnClash& onClash)
{
    const std::string analyzer = test.unit + " " + test.component + " " + scale.scale;
    std::size_t count = 0;
    for (const auto& injection : test.injections) {
        const auto outcome = calibrations_.add(scale, injection);
        if (outcome == Outcome::Taken)
            ++count;
        else
            onClash(file_.error(injection.path,
                                CalibrationWriter::fault(outcome, analyzer, injection)));
    }
    analyzers_.raiseDecimals(scale.calibration, test.decimals);
    return count;
}

} // namespace k7deval::sitedb
