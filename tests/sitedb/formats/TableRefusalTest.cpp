#include "sitedb/ImportCase.h"

#include <gtest/gtest.h>

namespace k7deval::sitedb::test
{

namespace
{

#define SPANS "unit_id,component_id,component_type,span_scale,span_value,units\n"

// The site has U1 010 NOX H and L, and U1 020 CO2 with one scale.
constexpr TableFault kSpanFaults[] = {
    {"no rows", SPANS, "the table has no rows."},
    {"a column is missing",
     "unit_id,component_id,component_type,span_scale,span_value\nU2,1,NOX,H,1\n",
     "line 1: the column units is missing."},
    {"a column stands twice", "unit_id,component_id,span_value,unit_id\nU2,1,1,U2\n",
     R"(line 1: the column "unit_id" stands there twice.)"},
    {"a field is missing", SPANS "U2,010,NOX,H,100\n",
     "line 2: the line has 5 fields, the header 6."},
    {"a field too many", SPANS "U2,010,NOX,H,100,PPM\nU2,011,NOX,H,100,PPM,\n",
     "line 3: the line has 7 fields, the header 6."},
    {"the unit is empty", SPANS ",010,NOX,H,100,PPM\n", "line 2: unit_id: the field is empty."},
    {"a unit of seven letters", SPANS "UNIT007,010,NOX,H,100,PPM\n",
     R"(line 2: unit_id: "UNIT007" is no identifier of 1 to 6 characters.)"},
    {"a unit with blanks", SPANS "U2 ,010,NOX,H,100,PPM\n",
     R"(line 2: unit_id: "U2 " is no identifier of 1 to 6 characters.)"},
    {"a unit that is not ASCII", SPANS "\xC3\x9C\x31,010,NOX,H,100,PPM\n",
     R"(line 2: unit_id: "??1" is no identifier of 1 to 6 characters.)"},
    {"the component is empty", SPANS "U2,,NOX,H,100,PPM\n",
     "line 2: component_id: the field is empty."},
    {"a component of four letters", SPANS "U2,0100,NOX,H,100,PPM\n",
     R"(line 2: component_id: "0100" is no identifier of 1 to 3 characters.)"},
    {"the type is empty", SPANS "U2,010,,H,100,PPM\n",
     "line 2: component_type: the field is empty."},
    {"an unknown type", SPANS "U2,010,OP,H,100,PCT\n",
     R"(line 2: component_type: "OP" is not SO2, NOX, CO, O2, CO2, HG, HCL, HF, H2O or FLOW.)"},
    {"a type in small letters", SPANS "U2,010,nox,H,100,PPM\n",
     R"(line 2: component_type: "nox" is not SO2, NOX, CO, O2, CO2, HG, HCL, HF, H2O or FLOW.)"},
    {"an unknown scale", SPANS "U2,010,NOX,HIGH,100,PPM\n",
     R"(line 2: span_scale: "HIGH" is not H, L or empty.)"},
    {"the span is empty", SPANS "U2,010,NOX,H,,PPM\n", "line 2: span_value: the field is empty."},
    {"the span is no number", SPANS "U2,010,NOX,H,1O0,PPM\n",
     R"(line 2: span_value: "1O0" is no number.)"},
    {"the span is infinite", SPANS "U2,010,NOX,H,inf,PPM\n",
     R"(line 2: span_value: "inf" is no number.)"},
    {"the span has a decimal comma", SPANS "U2,010,NOX,H,\"100,5\",PPM\n",
     R"(line 2: span_value: "100,5" is no number.)"},
    {"the span is 0", SPANS "U2,010,NOX,H,0,PPM\n", "line 2: span_value: a span is above 0."},
    {"the span is negative", SPANS "U2,010,NOX,H,-5,PPM\n",
     "line 2: span_value: -5 lies outside 0 to 1000000."},
    {"more percent than all", SPANS "U2,010,CO2,H,101,PCT\n",
     "line 2: span_value: 101 lies outside 0 to 100."},
    {"units of another gas", SPANS "U2,010,NOX,H,100,PCT\n",
     R"(line 2: units: "PCT" is not PPM, the unit of NOX.)"},
    {"a span that the site has", SPANS "U1,010,NOX,H,100,PPM\n",
     "line 2: span_scale: the site already has the span of U1 010 on this scale."},
    {"a span that stands twice", SPANS "U2,010,NOX,H,100,PPM\nU2,010,NOX,H,200,PPM\n",
     "line 3: span_scale: the site already has the span of U2 010 on this scale."},
    {"a component with two gases", SPANS "U1,020,O2,H,25,PCT\n",
     "line 2: component_type: component 020 of U1 measures another gas."},
    {"the last line is cut off", SPANS "U2,010,NOX,H,100,PP",
     "line 2: the line does not end, so the file seems to be cut off."},
    {"the last line is cut off in a quote", SPANS R"(U2,010,NOX,H,100,"PP)",
     "line 2: a quoted field does not end."},
    {"a quote inside a field", SPANS "U2,0\"1,NOX,H,100,PPM\n",
     "line 2: a quote stands inside a field."},
    {"text behind a quoted field", SPANS "U2,\"01\"0,NOX,H,100,PPM\n",
     "line 2: a comma or a line end is missing."},
    {"a line end of its own kind", SPANS "U2,010,NOX,H,100,PPM\rU2,011,NOX,H,100,PPM\n",
     "line 2: a comma or a line end is missing."},
    {"a fault behind a field of two lines and an empty line",
     SPANS "\n\"U\n2\",010,NOX,H,100,PPM\nU3,,NOX,H,1,PPM\n",
     R"(line 3: unit_id: "U?2" is no identifier of 1 to 6 characters.)"},
    {"a late fault takes all back",
     SPANS "U2,010,NOX,H,100,PPM\nU3,010,NOX,H,100,PPM\nU4,,NOX,H,1,PPM\n",
     "line 4: component_id: the field is empty."},
};

#define LOAD "date,hour,gross_load_mw,heat_input_mmbtu\n"

// The site has the hours 0 and 1 of 2020-01-01 for U1.
constexpr TableFault kLoadFaults[] = {
    {"no rows", LOAD, "the table has no rows."},
    {"a column stands twice", "date,hour,gross_load_mw,hour\n2020-01-02,0,1,0\n",
     R"(line 1: the column "hour" stands there twice.)"},
    {"the date is empty", LOAD ",0,5,0\n", "line 2: date: the field is empty."},
    {"an impossible date", LOAD "2020-01-02,0,5,0\n2020-04-31,0,5,0\n",
     R"(line 3: date: "2020-04-31" is no date.)"},
    {"month 13", LOAD "2020-13-01,0,5,0\n", R"(line 2: date: "2020-13-01" is no date.)"},
    {"day 0", LOAD "2020-01-00,0,5,0\n", R"(line 2: date: "2020-01-00" is no date.)"},
    {"a short date", LOAD "2020-1-2,0,5,0\n", R"(line 2: date: "2020-1-2" is no date.)"},
    {"the hour is empty", LOAD "2020-01-02,,5,0\n", "line 2: hour: the field is empty."},
    {"hour 24", LOAD "2020-01-02,24,5,0\n", "line 2: hour: 24 is no hour from 0 to 23."},
    {"hour -1", LOAD "2020-01-02,-1,5,0\n", "line 2: hour: -1 is no hour from 0 to 23."},
    {"half an hour", LOAD "2020-01-02,0.5,5,0\n", R"(line 2: hour: "0.5" is no whole number.)"},
    {"an hour beyond all bounds", LOAD "2020-01-02,99999999999,5,0\n",
     R"(line 2: hour: "99999999999" is no whole number.)"},
    {"the load is empty", LOAD "2020-01-02,0,,0\n", "line 2: gross_load_mw: the field is empty."},
    {"the load is no number", LOAD "2020-01-02,0,n/a,0\n",
     R"(line 2: gross_load_mw: "n/a" is no number.)"},
    {"the load is negative", LOAD "2020-01-02,0,-1,0\n",
     "line 2: gross_load_mw: -1 lies outside 0 to 999999."},
    {"the load is beyond all plants", LOAD "2020-01-02,0,1000000,0\n",
     "line 2: gross_load_mw: 1000000 lies outside 0 to 999999."},
    {"an hour stands twice", LOAD "2020-01-02,0,5,0\n2020-01-02,1,5,0\n2020-01-02,0,6,0\n",
     "line 4: date and hour: hour 0 of 2020-01-02 stands in the file twice."},
    {"an hour that the site holds", LOAD "2020-01-02,0,5,0\n2020-01-01,1,5,0\n",
     "line 3: date and hour: the site already holds the unit's load for hour 1 of 2020-01-01."},
    {"a field is missing", LOAD "2020-01-02,0,5\n", "line 2: the line has 3 fields, the header 4."},
    {"the last line is cut off", LOAD "2020-01-02,0,5,0\n2020-01-02,1,15",
     "line 3: the line does not end, so the file seems to be cut off."},
};

struct SiteWithLoad : SmallSite {
    SiteWithLoad()
    {
        importFile(site,
                   directory.write("first.csv",
                                   "date,hour,gross_load_mw\n2020-01-01,0,10\n2020-01-01,1,0\n"),
                   forUnit("U1"));
    }
};

using SpanTableRefusal = ImportCases<SmallSite, TableFault>;
using SpanTableRefusals = ImportTest<EmptySite>;

TEST_P(SpanTableRefusal, NamesFileLineAndFieldAndLeavesTheSiteAsItWas)
{
    EXPECT_EQ(refused("new.csv", GetParam().content),
              std::string("new.csv: ") + GetParam().sentence);
}

INSTANTIATE_TEST_SUITE_P(Spans, SpanTableRefusal, testing::ValuesIn(kSpanFaults));

using HourlyLoadRefusal = ImportCases<SiteWithLoad, TableFault>;
using HourlyLoadRefusals = ImportTest<SiteWithLoad>;

TEST_P(HourlyLoadRefusal, NamesFileLineAndFieldAndLeavesTheSiteAsItWas)
{
    EXPECT_EQ(refused("load.csv", GetParam().content, forUnit("U1")),
              std::string("load.csv: ") + GetParam().sentence);
}

INSTANTIATE_TEST_SUITE_P(Load, HourlyLoadRefusal, testing::ValuesIn(kLoadFaults));

TEST_F(SpanTableRefusals, TheSameFileIsRefused)
{
    const std::string table = SPANS "U2,010,NOX,H,100,PPM\n";
    take("a.csv", table);
    EXPECT_EQ(refused("b.csv", table), "b.csv: the site has imported this file before, as a.csv.");
}

TEST_F(SpanTableRefusals, ATwentiethUnitIsRefused)
{
    std::string table = SPANS;
    for (int unit = 1; unit <= 20; ++unit)
        table += "U" + std::to_string(unit) + ",010,NOX,H,100,PPM\n";
    EXPECT_EQ(refused("spans.csv", table),
              "spans.csv: line 21: unit_id: U20 would be one unit too many, since a site holds at "
              "most 19.");
    table.erase(table.find("U20,"));
    take("spans.csv", table);
    EXPECT_EQ(site.server()->Units().size(), 19U);
    const auto load = held.directory.write("load.csv", LOAD "2020-01-02,0,5,0\n");
    EXPECT_EQ(refusal(held, load, forUnit("U20")),
              "load.csv: unit: U20 would be one unit too many, since a site holds at most 19.");
}

TEST_F(SpanTableRefusals, AHundredthComponentOfAGasIsRefused)
{
    std::string table = SPANS;
    for (int component = 100; component < 200; ++component)
        table += "U1," + std::to_string(component) + ",NOX,H,100,PPM\n";
    EXPECT_EQ(refused("spans.csv", table),
              "spans.csv: line 101: component_id: a unit has at most 99 components for one gas.");
}

TEST_F(HourlyLoadRefusals, TheUnitHasToBeNamed)
{
    const auto file = held.directory.write("load.csv", LOAD "2020-01-02,0,5,0\n");
    EXPECT_EQ(refusal(held, file, {}),
              "load.csv: unit: the unit that the load belongs to has to be named.");
    EXPECT_EQ(refusal(held, file, forUnit("UNIT007")),
              R"(load.csv: unit: "UNIT007" is no identifier of 1 to 6 characters.)");
}

TEST_F(HourlyLoadRefusals, TheSameFileIsRefusedForEveryUnit)
{
    const auto file = held.directory.write("load.csv", LOAD "2020-01-02,0,5,0\n");
    importFile(site, file, forUnit("U1"));
    for (const char* unit : {"U1", "U2"})
        EXPECT_EQ(refusal(held, file, forUnit(unit)),
                  "load.csv: the site has imported this file before, as load.csv.");
}

} // namespace

} // namespace k7deval::sitedb::test
