#include "sitedb/formats/EcmpsQa.h"

#include "sitedb/formats/CalibrationRow.h"
#include "sitedb/formats/Fields.h"
#include "sitedb/formats/ImportSteps.h"
#include "sitedb/read/JsonNode.h"

namespace k7deval::sitedb
{

namespace
{

/// Reads a whole file.
class QaReader
{
public:
    explicit QaReader(bool leaveOutUnreadable) : rows_(leaveOutUnreadable, false) {}

    QaContent read(const JsonNode& root)
    {
        content_.orisCode = orisCodeIn(root.field("orisCode"));
        for (const auto& test : root.field("testSummaryData").elements())
            readTest(test);
        stepOverList(root, "certificationEventData");
        stepOverList(root, "testExtensionExemptionData");
        content_.leftOutCount = rows_.leftOutCount();
        content_.leftOut = rows_.leftOut();
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
            rows_.read(test, row);
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
        const JsonNode unit = node.field(isOfStack(node) ? "stackPipeId" : "unitId");
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

    static bool isOfStack(const JsonNode& test)
    {
        return test.field("unitId").isNull() && test.has("stackPipeId") &&
               !test.field("stackPipeId").isNull();
    }

    void stepOverList(const JsonNode& root, const char* name)
    {
        const std::size_t count = root.list({name}).size();
        if (count > 0)
            content_.steppedOver.push_back(std::string(name) + ": " + entries(count) + ".");
    }

    CalibrationRows rows_;
    QaContent content_;
};

} // namespace

QaContent readEcmpsQa(const SourceFile& file, bool leaveOutUnreadable)
{
    return QaReader(leaveOutUnreadable).read(JsonNode::parse(file));
}

} // namespace k7deval::sitedb
