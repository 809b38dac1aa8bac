#include "core/Frame.h"

#include "tests/support/Documents.h"

#include <limits>

namespace
{

TiXmlElement elementWith(const char* value)
{
    TiXmlElement element("E");
    element.SetAttribute("V", value);
    return element;
}

SafePointer<DomainXmlNode> nodeWith(const char* value)
{
    SafePointer<DomainXmlNode> node = frame::makeNode("E");
    node->setProperty("V", value);
    return node;
}

} // namespace

TEST(Frame, NarrowsNumbersAsTheFieldsDo)
{
    EXPECT_EQ(1, frame::intOf(elementWith("4294967297"), "V", 7));
    EXPECT_EQ(-1, frame::intOf(elementWith("99999999999999999999"), "V", 7));
    EXPECT_EQ(1, frame::uint16Of(elementWith("65537"), "V", 7));
    EXPECT_EQ(4294967295U, frame::uint32Of(elementWith("-1"), "V", 7));
    EXPECT_EQ(4294967295U, frame::uint32Of(elementWith("4294967295"), "V", 7));
    EXPECT_EQ(-5, frame::int64Of(elementWith("-5 km"), "V", 7));
    EXPECT_EQ(18446744073709551615U, frame::unsignedOf(elementWith("18446744073709551615"), "V", 7));
    EXPECT_EQ(9007199254740992, frame::wholeNumberOf(elementWith("9007199254740993"), "V", 7));
    EXPECT_EQ(-5L, frame::longOf(elementWith("-5"), "V", 7));
    EXPECT_EQ(4294967295UL, frame::unsignedLongOf(elementWith("4294967295"), "V", 7));
    EXPECT_EQ(2.5, frame::doubleOf(elementWith("2.5"), "V", 7));
    EXPECT_EQ(99.75F, frame::floatOf(elementWith("99.75"), "V", 7));
    EXPECT_EQ(2.5, frame::doubleProperty(nodeWith("2.5"), "V", 7));
    EXPECT_EQ(1, frame::uint16Property(nodeWith("65537"), "V", 7));
    EXPECT_EQ(4294967295U, frame::uint32Property(nodeWith("-1"), "V", 7));
    EXPECT_EQ(18446744073709551615U, frame::unsignedProperty(nodeWith("18446744073709551615"), "V", 7));
}

TEST(Frame, GivesTheDefaultForWhatIsMissing)
{
    const TiXmlElement empty("E");
    EXPECT_EQ(7, frame::intOf(empty, "V", 7));
    EXPECT_EQ(7, frame::uint16Of(empty, "V", 7));
    EXPECT_EQ(4000000000U, frame::uint32Of(empty, "V", 4000000000U));
    EXPECT_EQ(-7, frame::int64Of(empty, "V", -7));
    EXPECT_EQ(std::numeric_limits<unsigned long long>::max(),
              frame::unsignedOf(empty, "V", std::numeric_limits<unsigned long long>::max()));
    EXPECT_EQ(-7, frame::wholeNumberOf(empty, "V", -7));
    EXPECT_EQ(-7L, frame::longOf(empty, "V", -7));
    EXPECT_EQ(7UL, frame::unsignedLongOf(empty, "V", 7));
    EXPECT_EQ(7.5F, frame::floatOf(empty, "V", 7.5F));
    EXPECT_EQ(7.5, frame::doubleOf(empty, "V", 7.5));
    EXPECT_EQ(7, frame::queriedIntOf(empty, "V", 7));
    EXPECT_TRUE(frame::flagOf(empty, "V", true));
    EXPECT_EQ("x", frame::textOf(empty, "V", "x"));
    EXPECT_EQ(std::string("a\0b", 3), frame::textOf(empty, "V", std::string("a\0b", 3)));
}

TEST(Frame, TakesWhatIsNoNumberForMissingWhereAsked)
{
    EXPECT_EQ(7, frame::queriedIntOf(elementWith("abc"), "V", 7));
    EXPECT_EQ(7, frame::queriedIntOf(elementWith(""), "V", 7));
    EXPECT_EQ(12, frame::queriedIntOf(elementWith("12a"), "V", 7));
    EXPECT_EQ(1, frame::queriedIntOf(elementWith("4294967297"), "V", 7));
}

TEST(Frame, TakesWhatIsThereForAValue)
{
    EXPECT_EQ(0, frame::intOf(elementWith("abc"), "V", 7));
    EXPECT_EQ(0, frame::intOf(elementWith(""), "V", 7));
    EXPECT_EQ(0, frame::doubleOf(elementWith("abc"), "V", 7));
    EXPECT_FALSE(frame::flagOf(elementWith("maybe"), "V", true));
    EXPECT_TRUE(frame::flagOf(elementWith("1"), "V", false));
    EXPECT_EQ("", frame::textOf(elementWith(""), "V", "x"));
}

TEST(Frame, WritesEveryKindOfValue)
{
    TiXmlElement element("E");
    frame::setInt(element, "Int", -1);
    frame::setInt64(element, "Int64", std::numeric_limits<long long>::min());
    frame::setUnsigned(element, "Unsigned", std::numeric_limits<unsigned long long>::max());
    frame::setFloat(element, "Float", 0.1F);
    frame::setDouble(element, "Double", 0.1);
    frame::setFlag(element, "Flag", true);
    frame::setText(element, "Text", "<&>");
    frame::setText(element, "Zero", std::string("a\0b", 3));
    frame::setText(element, "Int", "again");
    std::string text;
    frame::print(element, text);
    EXPECT_EQ("<E Int=\"again\" Int64=\"-9223372036854775808\" Unsigned=\"18446744073709551615\" Float=\"0.1\" "
              "Double=\"0.1\" Flag=\"true\" Text=\"&lt;&amp;&gt;\" Zero=\"a&#x00;b\" />\n",
              text);
}

TEST(Frame, PrintsTheLineOfAMissingProperty)
{
    const SafePointer<DomainXmlNode> node = nodeWith("1");
    CapturedOutput output;
    EXPECT_EQ(3, frame::intProperty(node, "W", 3, "get W failed "));
    EXPECT_EQ(1, frame::intProperty(node, "V", 3, "get V failed "));
    EXPECT_EQ(3, frame::intProperty(node, "W", 3));
    EXPECT_TRUE(frame::flagProperty(node, "W", true, "flag"));
    EXPECT_EQ(0.5F, frame::floatProperty(node, "W", 0.5F, "float"));
    EXPECT_EQ("x", frame::textProperty(node, "W", "x", "text"));
    EXPECT_EQ(9U, frame::uint16Property(node, "W", 9, "uint16"));
    EXPECT_EQ(9U, frame::uint32Property(node, "W", 9, "uint32"));
    EXPECT_EQ(9U, frame::unsignedProperty(node, "W", 9, "unsigned"));
    EXPECT_EQ("get W failed \nflag\nfloat\ntext\nuint16\nuint32\nunsigned\n", output.text());
}

TEST(Frame, FindsRootsAndItemsAmongElementsOnly)
{
    TiXmlDocument document;
    TiXmlNode* node = nullptr;
    ASSERT_TRUE(frame::parseRoot("<!--Root--><Other/><Root><!--List--><List><!--Item-->t<Other/><Item/></List></Root>",
                                 "Root", document, node));
    const TiXmlElement* root = frame::elementOf(node);
    ASSERT_NE(nullptr, root);
    const TiXmlElement* item = frame::firstItem(*root, "List", "Item");
    ASSERT_NE(nullptr, item);
    EXPECT_STREQ("Item", item->Value());
    EXPECT_EQ(item, frame::firstItem(*item->Parent()->ToElement(), "Item"));
    EXPECT_EQ(nullptr, frame::firstItem(*root, "List", "None"));
    EXPECT_EQ(nullptr, frame::firstItem(*root, "None", "Item"));
}

TEST(Frame, LeavesTheNodeOfAFailedParse)
{
    for (const char* text : {"", "<Root", "<!--Root--><Other>Root</Other>"})
    {
        TiXmlDocument document;
        TiXmlElement before("Before");
        TiXmlNode* node = &before;
        EXPECT_FALSE(frame::parseRoot(text, "Root", document, node)) << text;
        EXPECT_EQ(&before, node);
    }
}

TEST(Frame, TakesOnlyElementsForElements)
{
    EXPECT_EQ(nullptr, frame::elementOf(nullptr));
    const TiXmlComment comment("E");
    EXPECT_EQ(nullptr, frame::elementOf(&comment));
    const TiXmlDocument document;
    EXPECT_EQ(nullptr, frame::elementOf(&document));
}

TEST(Frame, AppendsNodesWithoutAnElementToNodesWithoutOne)
{
    SafePointer<DomainXmlNode> nothing(new DomainXmlNode(static_cast<TiXmlElement*>(nullptr)));
    SafePointer<DomainXmlNode> child = frame::appendNode(nothing, "Child");
    EXPECT_EQ(nullptr, child->getXmlNode());
    EXPECT_EQ(5, frame::intProperty(child, "V", 5));
    EXPECT_EQ(nullptr, frame::firstChild(nothing));
}
