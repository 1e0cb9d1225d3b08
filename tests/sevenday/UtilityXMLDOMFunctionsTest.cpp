#include "sevenday/UtilityXMLDOMFunctions.h"

#include <gtest/gtest.h>
#include <pugixml.hpp>

/// The small functions that the export builds its tree with.
namespace k7deval::test
{

namespace
{

/// A document with the root "Root".
struct Tree {
    pugi::xml_document document = CreateXMLDocument();
    pugi::xml_node root = AddChildElement(document.root(), "Root", "");

    [[nodiscard]] std::string text() const { return documentText(document); }
};

const RegionalSettings kSettings;

} // namespace

TEST(CreateXMLDocument, IsEmpty)
{
    EXPECT_EQ(documentText(CreateXMLDocument()), "");
}

struct TreeStepsCase {
    const char* what;
    void (*build)(pugi::xml_node root);
    const char* text;
};

constexpr TreeStepsCase kTreeSteps[] = {
    {"children stand in their order, namesakes too",
     [](auto root) {
         AddChildElement(root, "A", "1");
         AddChildElement(root, "B", "2");
         AddChildElement(root, "A", "3");
     },
     "<Root><A>1</A><B>2</B><A>3</A></Root>"},
    {"what XML keeps for itself is escaped", [](auto root) { AddChildElement(root, "A", "<&>"); },
     "<Root><A>&lt;&amp;&gt;</A></Root>"},
    {"a text takes the place of that of the first namesake",
     [](auto root) {
         AddChildElement(root, "A", "old");
         AddChildElement(root, "B", "");
         AddChildElement(root, "A", "second");
         SetNodeText(root, "A", "new");
         SetNodeText(root, "B", "filled");
     },
     "<Root><A>new</A><B>filled</B><A>second</A></Root>"},
    {"an element can be emptied",
     [](auto root) {
         AddChildElement(root, "A", "old");
         SetNodeText(root, "A", "");
     },
     "<Root><A/></Root>"},
    {"an element that is not among the children is added",
     [](auto root) {
         AddChildElement(AddChildElement(root, "Child", ""), "A", "deep");
         SetNodeText(root, "A", "new");
     },
     "<Root><Child><A>deep</A></Child><A>new</A></Root>"},
    {"a date fills an element that is there",
     [](auto root) {
         AddChildElement(root, "When", "");
         AddChildElement(root, "Behind", "");
         SetDateNode(root, "When", makeDate(2024, 3, 5), "yyyy-mm-dd");
     },
     "<Root><When>2024-03-05</When><Behind/></Root>"},
    {"no date empties it",
     [](auto root) {
         AddChildElement(root, "When", "2024-03-05");
         SetDateNode(root, "When", {}, "yyyy-mm-dd");
     },
     "<Root><When/></Root>"},
    {"a truth fills an element that is there",
     [](auto root) {
         AddChildElement(root, "Is", "");
         SetBooleanNode(root, "Is", true, kSettings);
     },
     "<Root><Is>1</Is></Root>"},
};

TEST(XMLTree, IsBuiltStepByStep)
{
    for (const TreeStepsCase& row : kTreeSteps) {
        Tree tree;
        row.build(tree.root);
        EXPECT_EQ(tree.text(), row.text) << row.what;
    }
}

TEST(XMLTree, GivesTheElementThatWasAddedOrFilled)
{
    Tree tree;
    const pugi::xml_node added = AddChildElement(tree.root, "A", "");
    EXPECT_EQ(added, tree.root.last_child());
    EXPECT_FALSE(added.first_child()) << "an empty text is no content";
    const pugi::xml_node second = SetNodeText(tree.root, "B", "2");
    EXPECT_EQ(second, tree.root.last_child());
    EXPECT_EQ(SetNodeText(tree.root, "A", "1"), added);
    SetNodeText(tree.root, "A", "");
    EXPECT_FALSE(added.first_child());
}

TEST(XMLTree, WithoutAParentGivesNothing)
{
    EXPECT_FALSE(AddChildElement(pugi::xml_node(), "A", "1"));
    EXPECT_FALSE(SetNodeText(pugi::xml_node(), "A", "1"));
}

struct ExportedDate {
    const char* what;
    Date value;
    const char* format;
    const char* text;
};

TEST(SetDateNode, WritesTheDateInItsFormatOrInTheOneThatFits)
{
    const Date midnight = makeDate(2024, 3, 5);
    const Date morning = makeDate(2024, 3, 5, 8, 7);
    const double second = 1.0 / 86400;
    const ExportedDate rows[] = {
        {"the zero date", {}, "yyyy-mm-dd", ""},
        {"the zero date without a format", {}, "", ""},
        {"months behind years", morning, "yyyy-mm-dd", "2024-03-05"},
        {"minutes behind hours", morning, "yyyy-MM-dd HH:mm", "2024-03-05 08:07"},
        {"minutes by their own letter", morning, "HH:nn", "08:07"},
        {"a time alone", {0.5}, "", "12:00"},
        {"a time of the zero date before the last minute", {1 - 90 * second}, "", "23:58"},
        {"a midnight", midnight, "", "2024-03-05"},
        {"a midnight within half a second", {midnight.days + 0.4 * second}, "", "2024-03-05"},
        {"a second behind midnight", {midnight.days + second}, "", "2024-03-05 00:00"},
        {"any other time", morning, "", "2024-03-05 08:07"},
        {"an early year", makeDate(345, 1, 2), "", "0345-01-02"},
    };
    for (const ExportedDate& row : rows) {
        Tree tree;
        const pugi::xml_node element = SetDateNode(tree.root, "When", row.value, row.format);
        EXPECT_EQ(std::string(element.text().as_string()), row.text) << row.what;
        EXPECT_EQ(element.first_child().empty(), *row.text == '\0') << row.what;
    }
}

struct BooleanCase {
    const char* what;
    Variant value;
    const char* text;
};

TEST(SetBooleanNode, WritesOneForTrueAndAnyNumberButZero)
{
    const BooleanCase rows[] = {
        {"true", true, "1"},
        {"false", false, "0"},
        {"one", std::int32_t{1}, "1"},
        {"minus one", std::int16_t{-1}, "1"},
        {"zero", std::int32_t{0}, "0"},
        {"a fraction", 0.25, "1"},
        {"a single of zero", 0.0F, "0"},
        {"an amount", Currency{1}, "1"},
        {"a numeric text", std::string("5"), "1"},
        {"a numeric text of zero", std::string("0.0"), "0"},
        {"a text that is no number", std::string("yes"), ""},
        {"a truth in words", std::string("True"), ""},
        {"an empty text", std::string(), ""},
        {"nothing given", Empty{}, ""},
        {"Null", Null{}, ""},
        {"a date", makeDate(2024, 3, 5), ""},
        {"a number too large for any", std::string("1E999"), ""},
    };
    for (const BooleanCase& row : rows) {
        Tree tree;
        const pugi::xml_node element = SetBooleanNode(tree.root, "Is", row.value, kSettings);
        EXPECT_EQ(std::string(element.text().as_string()), row.text) << row.what;
        EXPECT_EQ(element.first_child().empty(), *row.text == '\0') << row.what;
    }
}

} // namespace k7deval::test
