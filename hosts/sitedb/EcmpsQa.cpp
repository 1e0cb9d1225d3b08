#include "sitedb/EcmpsQa.h"

#include "sitedb/CalibrationRow.h"
#include "sitedb/ImportSteps.h"
#include "sitedb/JsonNode.h"

#include <algorithm>

namespace k7deval::sitedb
{

namespace
{

/// Reads a whole file.
class QaReader
{
public:
    explicit QaReader(bool leaveOutUnreadable) : leavesOut_(leaveOutUnreadable) {}

    QaContent read(const JsonNode& root)
    {
        content_.orisCode = root.field("orisCode").whole(1, kHighestOrisCode, "ORIS code");
        for (const auto& test : root.field("testSummaryData").elements())
            readTest(test);
        stepOverList(root, "certificationEventData");
        stepOverList(root, "testExtensionExemptionData");
        return std::move(content_);
    }

private:
    void readTest(const JsonNode& node)
    {
        const auto rows = rowsOf(node);
        if (rows.empty()) {
            content_.steppedOver.push_back(node.path() + ": " + testName(node) +
                                           " has no calibration injections.");
            return;
        }
        QaTest test = testHeader(node);
        for (const auto& row : rows)
            readRow(test, row);
        for (const auto& injection : test.injections)
            test.decimals = std::max(test.decimals, decimalsOf(injection));
        content_.tests.push_back(std::move(test));
    }

    static std::vector<JsonNode> rowsOf(const JsonNode& test)
    {
        return test.list({"calibrationInjectionData"});
    }

    static std::string testName(const JsonNode& test)
    {
        return test.has("testTypeCode") ? "the test " + test.field("testTypeCode").shown()
                                        : std::string("the test");
    }

    static QaTest testHeader(const JsonNode& node)
    {
        checkIsUnit(node);
        const JsonNode unit = node.field("unitId");
        const JsonNode component = node.field({"componentId", "componentID"});
        const JsonNode scaleNode = node.field("spanScaleCode");
        const auto scale = scaleOfCode(scaleNode.textOrNull());
        if (!scale)
            throw scaleNode.error(scaleNode.shown() + " is not H, L or null");
        QaTest test;
        test.unit = unit.text();
        test.unitPath = unit.path();
        test.component = component.text();
        test.componentPath = component.path();
        test.scale = *scale;
        test.scalePath = scaleNode.path();
        return test;
    }

    static void checkIsUnit(const JsonNode& test)
    {
        if (!test.field("unitId").isNull() || !test.has("stackPipeId"))
            return;
        const JsonNode stack = test.field("stackPipeId");
        if (!stack.isNull())
            throw stack.error(stack.shown() + " is a stack or pipe, and a site keeps the"
                                              " calibrations of units");
    }

    void readRow(QaTest& test, const JsonNode& row)
    {
        const CalibrationRow reader(row);
        attempt(test, [&] { return reader.zero(reader.runTime()); });
        attempt(test, [&] { return reader.upscale(runTimeOfUpscale(reader)); });
    }

    // The zero injection's time stands for the row. Where that one is left out because its time
    // can't be read, the upscale injection has only its own.
    [[nodiscard]] std::string runTimeOfUpscale(const CalibrationRow& reader) const
    {
        if (!leavesOut_)
            return reader.runTime();
        try {
            return reader.runTime();
        } catch (const ImportError&) {
            return reader.upscaleTime();
        }
    }

    template <class Read> void attempt(QaTest& test, const Read& read)
    {
        try {
            test.injections.push_back(read());
        } catch (const ImportError& failure) {
            if (!leavesOut_)
                throw;
            ++content_.leftOutCount;
            listLeftOut(failure.description());
        }
    }

    // A fault of a whole row keeps both its injections out; its sentence is listed once.
    void listLeftOut(const std::string& sentence)
    {
        auto& list = content_.leftOut;
        if (list.empty() || list.back() != sentence)
            list.push_back(sentence);
    }

    void stepOverList(const JsonNode& root, const char* name)
    {
        const std::size_t count = root.list({name}).size();
        if (count > 0)
            content_.steppedOver.push_back(std::string(name) + ": " + entries(count) + ".");
    }

    bool leavesOut_;
    QaContent content_;
};

} // namespace

QaContent readEcmpsQa(const SourceFile& file, bool leaveOutUnreadable)
{
    return QaReader(leaveOutUnreadable).read(JsonNode::parse(file));
}

} // namespace k7deval::sitedb
